// Two cursors through all charts, on samples. A click sets the first, Shift and a click the second; both can be dragged.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var colors = ["#b3261e", "#6a3fb5"];
    var near = 5;    // pixels from a cursor that still catch it
    var dragged = -1;

    scope.cursors = [null, null]; // s
    scope.activeCursor = 0;

    function firstTimes() {
        var longest = [];
        scope.eachChannel(function (channel) {
            if (channel.times.length > longest.length)
                longest = channel.times;
        });
        return longest;
    }

    // Place of the sample nearest to a time.
    scope.sampleAt = function (times, time) {
        var low = 0, high = times.length - 1;
        while (high - low > 1) {
            var middle = (low + high) >> 1;
            if (times[middle] < time)
                low = middle;
            else
                high = middle;
        }
        return time - times[low] <= times[high] - time ? low : high;
    };

    scope.setCursor = function (which, time) {
        var times = firstTimes();
        if (!times.length)
            return;
        scope.cursors[which] = times[scope.sampleAt(times, time)];
        scope.activeCursor = which;
        scope.changed();
    };

    scope.stepCursor = function (samples) {
        var times = firstTimes(), now = scope.cursors[scope.activeCursor];
        if (now === null || !times.length)
            return false;
        var to = Math.min(Math.max(scope.sampleAt(times, now) + samples, 0), times.length - 1);
        scope.setCursor(scope.activeCursor, times[to]);
        return true;
    };

    scope.clearCursors = function () {
        scope.cursors = [null, null];
        scope.changed();
    };

    // Value of a channel at a cursor, as recorded; nothing where the record has none.
    scope.valueAt = function (channel, time) {
        var times = channel.times;
        if (time === null || !times.length || time > times[times.length - 1] * (1 + 1e-5))
            return undefined;
        return channel.values[scope.sampleAt(times, time)];
    };

    function timeUnder(chart, event) {
        var place = event.clientX - chart.element.getBoundingClientRect().left - chart.plot.getPlotOffset().left;
        return chart.plot.getAxes().xaxis.c2p(place);
    }

    function cursorNear(chart, event) {
        var axis = chart.plot.getAxes().xaxis, at = axis.p2c(timeUnder(chart, event));
        return [scope.activeCursor, 1 - scope.activeCursor].filter(function (which) {
            return scope.cursors[which] !== null && Math.abs(axis.p2c(scope.cursors[which]) - at) <= near;
        });
    }

    function drawCursors(chart, context) {
        var offset = chart.plot.getPlotOffset(), axis = chart.plot.getAxes().xaxis;
        scope.cursors.forEach(function (time, which) {
            if (time === null || time < axis.min || time > axis.max)
                return;
            var x = Math.round(offset.left + axis.p2c(time)) + 0.5;
            context.save();
            context.strokeStyle = context.fillStyle = colors[which];
            context.setLineDash(which === 0 ? [] : [6, 3]);
            context.beginPath();
            context.moveTo(x, offset.top);
            context.lineTo(x, offset.top + chart.plot.height());
            context.stroke();
            context.font = "bold 11px sans-serif";
            context.fillText(String(which + 1), x + 3, offset.top + 11);
            context.restore();
        });
    }

    // In the capture phase: what begins on a cursor is no selection.
    function follow(chart) {
        var pressedAt = null;
        chart.element.addEventListener("mousedown", function (event) {
            pressedAt = event.button === 0 ? { x: event.clientX, y: event.clientY } : null;
            var caught = cursorNear(chart, event);
            if (event.button !== 0 || event.shiftKey || !caught.length)
                return;
            dragged = caught[0];
            event.stopPropagation();
            event.preventDefault();
        }, true);
        chart.element.addEventListener("mousemove", function (event) {
            chart.element.style.cursor = dragged >= 0 || cursorNear(chart, event).length ? "ew-resize" : "";
            scope.mouse = { chart: chart, time: timeUnder(chart, event) };
        });
        chart.element.addEventListener("mouseup", function (event) {
            var still = pressedAt && Math.abs(event.clientX - pressedAt.x) + Math.abs(event.clientY - pressedAt.y) < 4;
            pressedAt = null;
            if (still && dragged < 0 && scope.isInside(chart, event))
                scope.setCursor(event.shiftKey ? 1 : 0, timeUnder(chart, event));
        });
    }

    // Whether the mouse is in the part of the chart that shows the curves.
    scope.isInside = function (chart, event) {
        var box = chart.element.getBoundingClientRect(), offset = chart.plot.getPlotOffset();
        var x = event.clientX - box.left - offset.left, y = event.clientY - box.top - offset.top;
        return x >= 0 && y >= 0 && x <= chart.plot.width() && y <= chart.plot.height();
    };
    scope.timeUnder = timeUnder;

    document.addEventListener("mousemove", function (event) {
        if (dragged < 0 || !scope.charts.length)
            return;
        if (event.buttons & 1)
            scope.setCursor(dragged, timeUnder(scope.charts[0], event));
        else
            dragged = -1; // released where nobody told us
    });
    document.addEventListener("mouseup", function () { dragged = -1; });

    scope.afterAttach.push(function () {
        scope.charts.forEach(function (chart) {
            chart.plot.hooks.drawOverlay.push(function (plot, context) { drawCursors(chart, context); });
            follow(chart);
        });
    });
    scope.cursorColors = colors;
})();
