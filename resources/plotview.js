// What the window does to a plot page that stands: draws a new capture into it, and carries the zoom over. Runs behind
// the page's own scripts, in every page of the plot's scheme.
(function () {
    "use strict";
    if (!window.velbrinScope)
        return;

    var scope = window.velbrinScope;

    // jQuery for the scripts of a page that is ready already: what waits for that runs at once, so that nothing is
    // painted between the old charts and the new ones.
    function readyQuery(what) {
        return typeof what === "function" ? what() : jQuery.apply(null, arguments);
    }
    Object.assign(readyQuery, jQuery);

    // The page's charts without legend and numbers, which cost most of the time: attach() draws every chart anew, with its
    // own legend and with the numbers of the part that is seen.
    readyQuery.plot = Object.assign(function (element, data, options) {
        var bare = { legend: jQuery.extend({}, options.legend, { show: false }),
                     xaxis: jQuery.extend({}, options.xaxis, { show: false }),
                     yaxis: jQuery.extend({}, options.yaxis, { show: false }) };
        var plot = jQuery.plot(element, data, jQuery.extend({}, options, bare));
        plot.getOptions().xaxes.concat(plot.getOptions().yaxes).forEach(function (axis) { axis.show = null; });
        return plot;
    }, jQuery.plot);

    // How large a text is: the engine lays the page out for each that it is asked for, and the numbers at the axes of one
    // capture are those of the last. The library asks for texts out of sight.
    var sizes = {}, known = 0, most = 5000;
    var measure = SVGGraphicsElement.prototype.getBBox;
    SVGTextElement.prototype.getBBox = function () {
        if (this.getAttribute("x") !== "-9999")
            return measure.call(this);
        var key = this.getAttribute("class") + "\n" + this.style.font + "\n" + this.textContent;
        if (!sizes[key] && ++known > most) {
            sizes = {};
            known = 0;
        }
        return sizes[key] = sizes[key] || measure.call(this);
    };

    // Draws the page given as text into this one. The part of the record that is seen stays for the same channels; cursors,
    // units and hidden channels stay in any case.
    function replace(html, keepZoom) {
        var signature = scope.signature();
        var left = window.scrollX, top = window.scrollY;
        var fresh = new DOMParser().parseFromString(html, "text/html");
        var source = "";
        fresh.querySelectorAll("script").forEach(function (script) {
            if (script.type === "application/json")
                return;
            if (!script.src)
                source += script.textContent + "\n";
            script.remove();
        });
        scope.charts.forEach(function (chart) { chart.plot.destroy(); });
        jQuery(document).off(".velbrin");
        jQuery(window).off(".velbrin");
        document.body.textContent = "";
        while (fresh.body.firstChild)
            document.body.appendChild(document.adoptNode(fresh.body.firstChild));
        // Drawn once, as wide and as high as the charts before them, not once more when frame and heights are known.
        var places = Array.prototype.filter.call(document.body.children, function (child) {
            return child.tagName === "DIV" && child.id && child.style.height;
        });
        if (places.length === scope.charts.length)
            places.forEach(function (place) { place.style.height = scope.charts[0].element.style.height; });
        scope.buildFrame(places);
        new Function("$", source)(readyQuery);
        scope.attach(keepZoom ? signature : "");
        window.scrollTo(left, top);
    }

    // The link that saves: grey while a picture is being written.
    function setSaving(saving) {
        var link = jQuery("a[href^='tdext://exportpdf']");
        link.toggleClass("waiting", saving);
        if (saving)
            link.attr({ "aria-disabled": "true", tabindex: "-1" });
        else
            link.removeAttr("aria-disabled").removeAttr("tabindex");
    }

    // For a picture of the whole page: without scroll bars, which would take some of its width. Returns its height.
    function prepareForPicture(state) {
        document.documentElement.style.overflow = "hidden";
        document.documentElement.classList.add("scope-picture");
        scope.isPicture = true;
        jQuery(window).trigger("resize");
        if (state)
            scope.restore(state);
        return document.documentElement.scrollHeight;
    }

    // Whether the page has been painted in a window of this height, and painted again since nothing changed any more.
    var frames = 0;
    function isPainted(height) {
        if (window.innerHeight < height)
            return false;
        if (frames === 0)
            (function next() { if (++frames < 6) requestAnimationFrame(next); })();
        return frames >= 6;
    }

    window.velbrinView = { prepareForPicture: prepareForPicture, isPainted: isPainted, replace: replace,
                           setSaving: setSaving };
    jQuery(function () {
        scope.attach("");
        window.velbrinView.drawn = true;
    });
})();
