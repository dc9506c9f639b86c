// How much room the charts have: the window when opened out, 400 pixels each beside the pages and in a picture. The last
// file: what it adds runs behind everything else.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var usual = 400, least = 150; // pixels, as high as the page makes a chart

    function heightOf(element) {
        return element ? element.getBoundingClientRect().height : 0;
    }

    function setHeights() {
        var height = usual;
        if (scope.context.isOpenedOut && !scope.isPicture && scope.charts.length) {
            var room = window.innerHeight - scope.charts[0].legend.getBoundingClientRect().top - window.scrollY - 16;
            scope.charts.forEach(function (chart) { room -= heightOf(chart.legend) + 14; });
            height = Math.max(least, Math.floor(room / scope.charts.length));
        }
        scope.charts.forEach(function (chart) { chart.element.style.height = height + "px"; });
    }

    // The page's own words, which stay English in files.
    scope.afterAttach.push(function () {
        jQuery("body > p, body > p > a").contents().filter(function () { return this.nodeType === 3; }).each(function () {
            var own = this.nodeValue.replace(/^[\s|]+|[\s|]+$/g, "");
            if (own)
                this.nodeValue = this.nodeValue.replace(own, function () { return scope.text(own); });
        });
    });

    scope.afterChange.push(function () {
        var is = Boolean(scope.context.isOpenedOut), root = document.documentElement.classList;
        if (is === root.contains("scope-open"))
            return;
        root.toggle("scope-open", is);
        window.scrollTo(0, 0);
    });
    scope.afterChange.push(setHeights);
    scope.afterChange.push(scope.draw);

    // Behind the page's own handler, which redraws every chart by itself.
    jQuery(window).on("resize.scope", function () {
        setHeights();
        scope.draw();
    });

    // What a picture of the page needs to look like this view.
    scope.state = function () {
        return { view: scope.view, cursors: scope.cursors, unitChoice: scope.unitChoice, hidden: scope.hiddenChannels,
                 signature: scope.signature() };
    };
    scope.restore = function (state) {
        scope.cursors = state.cursors;
        scope.unitChoice = state.unitChoice;
        scope.hiddenChannels = state.hidden;
        scope.view = state.signature === scope.signature() ? state.view : { time: null, values: {} };
        scope.changed();
    };
})();
