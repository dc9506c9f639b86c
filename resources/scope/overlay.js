// Another capture of the session, in grey under the present one.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var grey = "#9aa4ad";

    function older() {
        return scope.context.overlay || null; // { title, period, channels: { key: [value, ...] } }
    }

    scope.overlayEnd = function () {
        var last = 0, capture = older();
        if (!capture)
            return 0;
        scope.eachChannel(function (channel) {
            var values = capture.channels[channel.key];
            if (values)
                last = Math.max(last, (values.length - 1) * capture.period);
        });
        return last;
    };

    scope.olderValues = function (channel) {
        return (older() && older().channels[channel.key]) || [];
    };

    // Value of the older capture at this time, or nothing.
    scope.olderValue = function (channel, time) {
        var capture = older(), values = capture && capture.channels[channel.key];
        var at = capture ? Math.round(time / capture.period) : -1;
        return values && at >= 0 && at < values.length ? values[at] : undefined;
    };

    // Before the first series of the chart, so that it lies under all of them.
    function drawOlder(chart, context) {
        var capture = older();
        if (!capture)
            return;
        var axes = chart.plot.getAxes(), offset = chart.plot.getPlotOffset();
        context.save();
        context.translate(offset.left, offset.top);
        context.beginPath();
        context.rect(0, 0, chart.plot.width(), chart.plot.height());
        context.clip();
        context.lineWidth = 1.5;
        context.lineJoin = "round";
        chart.channels.forEach(function (channel, place) {
            var values = capture.channels[channel.key], factor = scope.unitOf(channel).factor;
            if (!values || !chart.plot.getData()[place].lines.show)
                return;
            context.strokeStyle = grey;
            // Setpoints stand first in their groups; what is alone needs no telling apart.
            context.setLineDash(place % 2 || chart.channels.length === 1 ? [] : [5, 3]);
            context.beginPath();
            values.forEach(function (value, k) {
                context.lineTo(axes.xaxis.p2c(k * capture.period), axes.yaxis.p2c(value * factor));
            });
            context.stroke();
        });
        context.restore();
    }

    scope.afterAttach.push(function () {
        scope.charts.forEach(function (chart) {
            chart.plot.hooks.drawSeries.push(function (plot, context, series, index) {
                if (index === 0)
                    drawOlder(chart, context);
            });
        });
    });
})();
