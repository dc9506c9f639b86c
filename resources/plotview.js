// What the window does to a plot page that stands: draws a new capture into it, and carries the zoom over. Runs behind
// the page's own scripts, in every page of the plot's scheme.
(function () {
    "use strict";
    if (location.protocol !== "velbrin-plot:" || !window.jQuery)
        return;

    function charts() {
        return jQuery(".flot-base").parent();
    }

    function labels(plot) {
        return plot.getData().map(function (series) { return series.label; }).join("\n");
    }

    // The zoomed charts: id, what they show, and the ranges of their axes.
    function zoomedCharts() {
        var found = [];
        charts().each(function () {
            var plot = jQuery(this).data("plot");
            if (!plot || plot.getOptions().xaxes[0].autoScale !== "none")
                return;
            var x = plot.getAxes().xaxis, y = plot.getAxes().yaxis;
            found.push({ id: this.id, labels: labels(plot),
                         ranges: { xaxis: { from: x.min, to: x.max }, yaxis: { from: y.min, to: y.max } } });
        });
        return found;
    }

    // As if the same parts had been selected again; charts that show other channels now stay as they are.
    function zoom(zoomed) {
        zoomed.forEach(function (chart) {
            var plot = jQuery("#" + chart.id).data("plot");
            if (plot && labels(plot) === chart.labels)
                jQuery("#" + chart.id).trigger("plotselected", [chart.ranges]);
        });
    }

    // jQuery for the scripts of a page that is ready already: what waits for that runs at once, so that nothing is
    // painted between the old charts and the new ones.
    function readyQuery(what) {
        return typeof what === "function" ? what() : jQuery.apply(null, arguments);
    }
    Object.assign(readyQuery, jQuery);

    // Draws the page given as text into this one.
    function replace(html, keepZoom) {
        var zoomed = keepZoom ? zoomedCharts() : [];
        var left = window.scrollX, top = window.scrollY;
        var fresh = new DOMParser().parseFromString(html, "text/html");
        var source = "";
        fresh.querySelectorAll("script").forEach(function (script) {
            if (!script.src)
                source += script.textContent + "\n";
            script.remove();
        });
        charts().each(function () { jQuery(this).data("plot").destroy(); });
        jQuery(document).off(".velbrin");
        jQuery(window).off(".velbrin");
        jQuery(document.body).html(fresh.body.innerHTML);
        new Function("$", source)(readyQuery);
        zoom(zoomed);
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
    function prepareForPicture(zoomed) {
        document.documentElement.style.overflow = "hidden";
        jQuery(window).trigger("resize");
        zoom(zoomed);
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
                           zoomedCharts: zoomedCharts, setSaving: setSaving };
    jQuery(function () { window.velbrinView.drawn = true; });
})();
