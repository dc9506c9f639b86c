// The bar above the charts, and what stands beside them: captures, cursors, figures, axis sheet.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    var element = scope.element, text = scope.text;

    // Six significant digits, as in the files.
    function number(value) {
        return value === undefined ? "\u2013" : String(Number(value.toPrecision(6))).replace("-", "\u2212");
    }

    function milliseconds(seconds) {
        return seconds === null ? "\u2013" : number(seconds * 1000) + " ms";
    }

    function link(action, label, hint) {
        return element("a", { href: "tdext://scope/" + action, title: text(hint || "") }, [text(label)]);
    }

    function section(name, title, children) {
        return element("section", { id: "scope-" + name }, [element("h2", {}, [text(title)])].concat(children));
    }

    function row(cells, kind) {
        return element("tr", {}, cells.map(function (cell) { return element(kind || "td", {}, [cell]); }));
    }

    // --- Sections: each an element, or nothing ---------------------------------------------------------------------

    function cursorTable() {
        var times = scope.cursors;
        if (times[0] === null && times[1] === null)
            return section("cursors", "Cursors", [element("p", {}, [
                text("Click into a chart for the first cursor, Shift and click for the second.")])]);
        var both = times[0] !== null && times[1] !== null, apart = both ? times[1] - times[0] : null;
        var table = element("table", { "class": "scope-numbers" }, [row(["", "1", "2", "2 \u2212 1"], "th")]);
        table.appendChild(row([text("Time"), milliseconds(times[0]), milliseconds(times[1]), milliseconds(apart)]));
        scope.eachChannel(function (channel) {
            var unit = scope.unitOf(channel), values = times.map(function (time) {
                var value = scope.valueAt(channel, time);
                return value === undefined ? undefined : scope.inUnits(channel, value);
            });
            var difference = values[0] === undefined || values[1] === undefined ? undefined : values[1] - values[0];
            table.appendChild(row([channel.name + (unit.unit ? " [" + unit.unit + "]" : "")]
                .concat(values.concat([difference]).map(number))));
        });
        var children = [table];
        if (apart)
            children.push(element("p", {}, ["1 / \u0394t = " + number(1 / Math.abs(apart)) + " Hz"]));
        return section("cursors", "Cursors", children);
    }

    // What has a channel's unit is shown in the one that the charts have. A raw word has no error of a fraction.
    function figureValue(line) {
        var unit = line.isDefined && (scope.unitSystem().units || {})[line.unit];
        return unit ? number(Number((line.number * unit.factor).toPrecision(4))) + " " + unit.unit : line.value;
    }

    function figureTable(lines, isStale) {
        return element("table", { "class": "scope-figures" + (isStale ? " scope-stale" : "") },
            lines.map(function (line) {
                var made = row([line.caption, figureValue(line)]);
                if (!line.isDefined)
                    made.className = "scope-undefined";
                return made;
            }));
    }

    // While the next ones are being worked out, the last ones stay, in grey: nothing jumps.
    var lastFigures = [], lastSheet = [];
    function figures() {
        var lines = scope.context.figures;
        lastFigures = lines || lastFigures;
        return lastFigures.length ? section("figures", "Step figures", [figureTable(lastFigures, !lines)]) : null;
    }

    function axisSheet() {
        var lines = scope.context.axisSheet;
        lastSheet = lines || lastSheet;
        if (!lastSheet.length) // not a back-and-forth move
            return null;
        var children = [figureTable(lastSheet, !lines)];
        if (lines && scope.context.canTakeFeedForward)
            children.push(element("p", {}, [link("take-feed-forward", "Put AFF and VFF into the pages",
                "As a change that is not applied yet: the drive gets it with Apply")]));
        return section("axis", "Axis sheet", children);
    }

    function captures() {
        var list = scope.context.captures || [];
        if (!list.length)
            return null;
        var table = element("table", { "class": "scope-captures" }, list.map(function (capture) {
            var made = element("tr", capture.isShown ? { "class": "scope-shown" } : {}, [
                element("td", {}, [capture.isShown ? capture.title : link("show/" + capture.id, capture.title,
                                                                        "Show this capture")]),
                element("td", {}, [capture.settings]),
                element("td", {}, [capture.isShown ? "" : capture.isUnder
                    ? link("under/0", "take away", "No longer under the present capture")
                    : link("under/" + capture.id, "lay under", "In grey under the present capture")])
            ]);
            return made;
        }));
        return section("captures", "Captures of this session", [table]);
    }

    function differences() {
        var overlay = scope.context.overlay;
        if (!overlay)
            return null;
        var table = element("table", { "class": "scope-numbers" },
            [row(["", text("in grey"), text("shown")], "th")].concat(overlay.differences.map(function (line) {
                return row([line.name, line.older, line.present]);
            })));
        var what = overlay.differences.length ? table : element("p", {}, [text("No setting differs.")]);
        return section("differences", "Settings that differ", [element("p", {}, [overlay.title]), what]);
    }

    function note() {
        return scope.context.note ? section("note", "Note", [element("p", { "class": "scope-note" },
                                                                     [scope.context.note])]) : null;
    }

    // --- Bar and frame ---------------------------------------------------------------------------------------------

    function bar() {
        var made = element("div", { id: "scope-bar" }, [element("strong", {}, [scope.context.title || ""])]);
        if (scope.context.canOpenOut)
            made.appendChild(link("open-out", scope.context.isOpenedOut ? "Back to the pages (F11)" : "Open out (F11)",
                                  "The charts over the whole window, and back"));
        made.appendChild(scope.button("all", "Whole record", "All of the record in all charts (0)", scope.showAll));
        made.appendChild(scope.button("in", "+", "Less of the record, larger (+, wheel)",
                                      function () { scope.zoomTime(0.8); }));
        made.appendChild(scope.button("out", "\u2212", "More of the record (-, wheel)",
                                      function () { scope.zoomTime(1.25); }));
        made.appendChild(scope.unitsBar());
        made.appendChild(scope.button("nocursors", "No cursors", "Takes both cursors away (C)", scope.clearCursors));
        if (scope.context.canOpenFiles)
            made.appendChild(link("open-file", "Open capture...", "A capture that was saved as a page or as columns"));
        return made;
    }

    // In a narrow pane the tables stand below the charts: the most important figures then stand above them in a line.
    function summary() {
        var lines = (scope.context.figures || []).filter(function (line) { return line.isDefined && line.brief; });
        return element("p", { id: "scope-summary" }, [lines.map(function (line) {
            return line.brief + " " + figureValue(line);
        }).join("  \u00b7  ")]);
    }

    // Around the places of the charts, drawn or not: what is drawn into them later has its final width at once.
    scope.buildFrame = function (places) {
        if (document.getElementById("scope-main"))
            return;
        var charts = element("div", { id: "scope-charts" }), first = places[0];
        var main = element("div", { id: "scope-main" }, [charts, element("aside", { id: "scope-panel" })]);
        if (!first) {
            document.body.insertBefore(main, document.body.querySelector("p ~ *"));
        } else {
            first.parentNode.insertBefore(main, first);
            while (main.nextSibling && (main.nextSibling.nodeType === 3 || main.nextSibling.classList.contains("unitnote") ||
                   places.indexOf(main.nextSibling) >= 0))
                charts.appendChild(main.nextSibling);
        }
        main.parentNode.insertBefore(element("div", { id: "scope-head" }), main);
    };
    scope.afterAttach.unshift(function () {
        scope.buildFrame(scope.charts.map(function (chart) { return chart.element; }));
    });

    // Only what is another than before is put in: focus, selection and scrolling of the rest stay.
    function fill(id, children) {
        var holder = document.getElementById(id), fresh = element("div", {}, children.filter(Boolean));
        if (!holder || holder.innerHTML === fresh.innerHTML)
            return;
        var focused = holder.contains(document.activeElement) ? document.activeElement.id : "";
        holder.textContent = "";
        while (fresh.firstChild)
            holder.appendChild(fresh.firstChild);
        if (focused && document.getElementById(focused))
            document.getElementById(focused).focus();
    }

    scope.afterChange.push(function () {
        fill("scope-head", [bar(), summary()]);
        fill("scope-panel", [captures(), cursorTable(), figures(), axisSheet(), differences(), note()]);
    });
})();
