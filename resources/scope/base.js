// The scope around the charts of a plot page. Every file here adds its part to window.velbrinScope; they are put
// together into one script, in the order of the resource list, and run behind the page's own scripts.
//
// What the program knows about the capture stands in the page as an element of JSON, #velbrin-scope: the channels in
// their order, the units, the captures of this session, figures and texts. All texts that come from there are put in
// as text, never as markup. A page without it (tests, old programs) has the charts, zoom and cursors all the same.
(function () {
    "use strict";
    if (location.protocol !== "velbrin-plot:" || !window.jQuery || !jQuery.plot)
        return;

    var scope = window.velbrinScope = {
        context: {},
        charts: [],         // { id, element, plot, channels: [{ key, label, unit, scale, times, values, series }] }
        afterAttach: [],    // parts that build something around fresh charts
        afterChange: []     // parts that follow the view: what is seen, cursors, units
    };

    // Interface texts are English here and whatever the program has for them in its language.
    scope.text = function (english) {
        return (scope.context.texts || {})[english] || english;
    };

    // An element with text in it; `attributes` by name. Children are elements or texts.
    scope.element = function (tag, attributes, children) {
        var made = document.createElement(tag);
        Object.keys(attributes || {}).forEach(function (name) { made.setAttribute(name, attributes[name]); });
        (children || []).forEach(function (child) {
            made.appendChild(typeof child === "object" ? child : document.createTextNode(child));
        });
        return made;
    };

    scope.button = function (name, label, hint, action) {
        var made = scope.element("button", { type: "button", id: "scope-" + name, title: scope.text(hint) },
                                 [scope.text(label)]);
        made.addEventListener("click", action);
        return made;
    };

    scope.changed = function () {
        scope.afterChange.forEach(function (part) { part(); });
    };

    function nameWithoutUnit(name) {
        return name.replace(/ \[[^\]]*\]$/, "");
    }

    // The channels behind the series of a chart. The page draws the channels of a group in the order of the list.
    function channelsOf(id, plot) {
        var known = (scope.context.channels || []).filter(function (channel) { return channel.group === id; });
        var formatter = plot.getOptions().legend.labelFormatter;
        return plot.getData().map(function (series, i) {
            var label = formatter ? formatter(series.label, series) : series.label;
            var unit = (/ \[([^\]]*)\]$/.exec(label) || [])[1] || "";
            var channel = known.length === plot.getData().length ? known[i] : {};
            return {
                key: channel.key || id + i,
                name: nameWithoutUnit(channel.name || label),
                unit: channel.unit || unit,
                scale: channel.scale || 1,
                color: series.color,
                times: series.data.map(function (point) { return point[0]; }),
                values: series.data.map(function (point) { return point[1]; })
            };
        });
    }

    scope.eachChannel = function (visit) {
        scope.charts.forEach(function (chart) {
            chart.channels.forEach(function (channel, i) { visit(channel, chart, i); });
        });
    };

    // To be called when the page's own scripts have drawn its charts. The part of the record that was seen stays where
    // `keepFor` is what scope.signature() says of them.
    scope.attach = function (keepFor) {
        var source = document.getElementById("velbrin-scope");
        scope.context = source ? JSON.parse(source.textContent) : {};
        scope.charts = jQuery(".flot-base").parent().toArray().map(function (element) {
            var plot = jQuery(element).data("plot");
            return { id: element.id, element: element, plot: plot, channels: channelsOf(element.id, plot) };
        });
        if (scope.signature() !== keepFor)
            scope.view = { time: null, values: {} };
        scope.afterAttach.forEach(function (part) { part(); });
        scope.changed();
    };

    // The program knows more than it did when the page was drawn (figures, another capture laid under this one).
    scope.update = function (news) {
        Object.assign(scope.context, news);
        scope.changed();
    };
})();
