// Wheel and keys. Esc is not among them: it belongs to the drive.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var step = 1.25; // a notch of the wheel, a press of + or -

    function atMouseOrCursor() {
        return scope.cursors[scope.activeCursor] === null ? undefined : scope.cursors[scope.activeCursor];
    }

    function middle() {
        return (scope.seenTime().from + scope.seenTime().to) / 2;
    }

    function placeCursor(which) {
        var seen = scope.seenTime(), time = scope.mouse ? scope.mouse.time : middle();
        scope.setCursor(which, time < seen.from || time > seen.to ? middle() : time);
    }

    // By the key's character; "shift" and "ctrl" before the names of keys that have none.
    var keys = {
        "+": function () { scope.zoomTime(1 / step, atMouseOrCursor()); },
        "=": function () { scope.zoomTime(1 / step, atMouseOrCursor()); },
        "-": function () { scope.zoomTime(step, atMouseOrCursor()); },
        "0": function () { scope.showAll(); },
        "1": function () { placeCursor(0); },
        "2": function () { placeCursor(1); },
        "c": function () { scope.clearCursors(); },
        "u": function () { scope.nextUnits(); },
        "ArrowLeft": function () { return scope.stepCursor(-1); },
        "ArrowRight": function () { return scope.stepCursor(1); },
        "ctrl+ArrowLeft": function () { return scope.stepCursor(-10); },
        "ctrl+ArrowRight": function () { return scope.stepCursor(10); },
        "shift+ArrowLeft": function () { scope.panTime(-0.1); },
        "shift+ArrowRight": function () { scope.panTime(0.1); }
    };

    document.addEventListener("keydown", function (event) {
        if (event.altKey || event.metaKey || !scope.charts.length)
            return;
        var name = event.key;
        if (name.length > 1)
            name = (event.ctrlKey ? "ctrl+" : "") + (event.shiftKey ? "shift+" : "") + name;
        else if (event.ctrlKey)
            return;
        var action = keys[name.length === 1 ? name.toLowerCase() : name];
        if (action && action() !== false)
            event.preventDefault();
    });

    scope.afterAttach.push(function () {
        scope.charts.forEach(function (chart) {
            chart.element.addEventListener("wheel", function (event) {
                if (event.ctrlKey || !scope.isInside(chart, event))
                    return; // there it scrolls the page
                event.preventDefault();
                if (event.shiftKey || Math.abs(event.deltaX) > Math.abs(event.deltaY))
                    scope.panTime((event.deltaX || event.deltaY) > 0 ? 0.1 : -0.1);
                else if (event.deltaY !== 0)
                    scope.zoomTime(event.deltaY < 0 ? 1 / step : step, scope.timeUnder(chart, event));
            }, { passive: false });
        });
    });
})();
