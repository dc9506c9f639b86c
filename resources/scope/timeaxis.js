// One time axis for all charts: what part of the record is seen, and in each chart which part of the values.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var narrowest = 1e-5; // s and units; a chart never shows an empty range

    scope.view = { time: null, values: {} }; // null and absent: everything

    // From the first sample to the last of any channel, and of a capture that is laid under this one.
    scope.wholeTime = function () {
        var last = scope.overlayEnd ? scope.overlayEnd() : 0;
        scope.eachChannel(function (channel) {
            if (channel.times.length)
                last = Math.max(last, channel.times[channel.times.length - 1]);
        });
        return { from: 0, to: last || 1 };
    };

    scope.seenTime = function () {
        return scope.view.time || scope.wholeTime();
    };

    // Shows a part of the record; nothing shows all of it. Never beyond its ends by more than its length.
    scope.showTime = function (from, to) {
        var whole = scope.wholeTime(), length = whole.to - whole.from;
        from = Math.max(from, whole.from - length);
        to = Math.min(to, whole.to + length);
        if (to - from < narrowest)
            to = from + narrowest;
        scope.view.time = { from: from, to: to };
        scope.changed();
    };

    scope.showAll = function () {
        scope.view = { time: null, values: {} };
        scope.changed();
    };

    // factor < 1 shows less; `centre` keeps its place.
    scope.zoomTime = function (factor, centre) {
        var seen = scope.seenTime();
        if (centre === undefined || centre < seen.from || centre > seen.to)
            centre = (seen.from + seen.to) / 2;
        scope.showTime(centre - (centre - seen.from) * factor, centre + (seen.to - centre) * factor);
    };

    scope.panTime = function (share) {
        var seen = scope.seenTime(), by = (seen.to - seen.from) * share;
        scope.showTime(seen.from + by, seen.to + by);
    };

    scope.signature = function () {
        return scope.charts.map(function (chart) {
            return chart.id + ":" + chart.channels.map(function (channel) { return channel.name; }).join("\n");
        }).join("\n\n");
    };

    // Of all channels that are shown, and of what is laid under them, with a little room around it.
    function wholeValues(chart) {
        var low = Infinity, high = -Infinity;
        chart.channels.forEach(function (channel, i) {
            if (!chart.plot.getData()[i].lines.show)
                return;
            var factor = scope.unitOf(channel).factor;
            [channel.values, scope.olderValues(channel)].forEach(function (values) {
                values.forEach(function (value) {
                    low = Math.min(low, value * factor);
                    high = Math.max(high, value * factor);
                });
            });
        });
        if (low > high)
            return { from: -1, to: 1 };
        var room = (high - low) * 0.05 || Math.abs(high) * 0.05 || 1;
        return { from: low - room, to: high + room };
    }

    function setAxis(options, range) {
        options.autoScale = "none";
        options.min = range.from;
        options.max = range.to;
    }

    function setRanges(chart) {
        setAxis(chart.plot.getOptions().xaxes[0], scope.seenTime());
        setAxis(chart.plot.getOptions().yaxes[0], scope.view.values[chart.id] || wholeValues(chart));
    }

    // Equal room for the numbers at the left of all charts, so that the same time is at the same place in each. Never
    // less than before: with every capture of a series the charts would jump.
    var roomForNumbers = 0;
    function alignCharts() {
        scope.charts.forEach(function (chart) {
            var axis = chart.plot.getAxes().yaxis;
            axis.options.labelWidth = null;
            chart.plot.setupGrid();
            roomForNumbers = Math.max(roomForNumbers, axis.labelWidth);
        });
        scope.charts.forEach(function (chart) {
            var axis = chart.plot.getAxes().yaxis;
            if (axis.labelWidth !== roomForNumbers) {
                axis.options.labelWidth = roomForNumbers;
                chart.plot.setupGrid();
            }
        });
    }

    scope.afterAttach.push(function () {
        scope.charts.forEach(function (chart) {
            // The page redraws one chart; here all follow.
            jQuery(chart.element).off("plotselected").on("plotselected", function (event, ranges) {
                if (ranges.yaxis) {
                    scope.view.values[chart.id] = {
                        from: ranges.yaxis.from, to: Math.max(ranges.yaxis.to, ranges.yaxis.from + narrowest)
                    };
                }
                chart.plot.clearSelection(true);
                scope.showTime(ranges.xaxis.from, ranges.xaxis.to);
            });
        });
    });

    // The drawing follows the room that the page gives it.
    function fit(chart) {
        var canvas = chart.plot.getCanvas(), element = chart.element;
        if (canvas.clientWidth !== element.clientWidth || canvas.clientHeight !== element.clientHeight)
            chart.plot.resize();
    }

    scope.draw = function () {
        scope.charts.forEach(fit);
        scope.charts.forEach(setRanges);
        alignCharts();
        scope.charts.forEach(function (chart) { chart.plot.draw(); });
    };
})();
