// Machine units, as recorded, and raw words of the recorder: one click changes all charts, cursors and legends.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    // Each of context.units is { name, units: { "vel": { factor, unit }, ... } }: what a recorded unit is multiplied
    // with, and what it is then. Raw words follow from the channel's scale.
    scope.unitChoice = 0;

    function systems() {
        return (scope.context.units || [{ name: "As recorded" }]).concat([{ name: "Raw words", raw: true }]);
    }

    scope.unitSystem = function () {
        return systems()[Math.min(scope.unitChoice, systems().length - 1)];
    };

    // { factor, unit } of a channel in the chosen system.
    scope.unitOf = function (channel) {
        var system = scope.unitSystem();
        if (system.raw)
            return { factor: 1 / channel.scale, unit: scope.text("raw") };
        return (system.units || {})[channel.unit] || { factor: 1, unit: channel.unit };
    };

    // A recorded value in them. The page has six digits of a value: of a raw word that is all of it, once rounded.
    scope.inUnits = function (channel, value) {
        var shown = value * scope.unitOf(channel).factor;
        return scope.unitSystem().raw ? Math.round(shown) : shown;
    };

    scope.setUnits = function (choice) {
        scope.unitChoice = choice % systems().length;
        scope.view.values = {}; // in the old unit
        scope.changed();
    };
    scope.nextUnits = function () { scope.setUnits(scope.unitChoice + 1); };

    scope.unitsBar = function () {
        return scope.element("span", { "class": "scope-units" }, systems().map(function (system, i) {
            var made = scope.button("units" + i, system.name, "Units of all charts and values (U)",
                                    function () { scope.setUnits(i); });
            if (i === Math.min(scope.unitChoice, systems().length - 1))
                made.setAttribute("aria-pressed", "true");
            return made;
        }));
    };

    // The page has drawn what was recorded.
    function channelsAsDrawn(chart) {
        return chart.channels.map(function () { return 1; }).join();
    }

    scope.afterChange.push(function () {
        scope.charts.forEach(function (chart) {
            var factors = chart.channels.map(function (channel) { return scope.unitOf(channel).factor; }).join();
            if (factors === (chart.factors || channelsAsDrawn(chart)))
                return;
            chart.factors = factors;
            chart.plot.setData(chart.plot.getData().map(function (series, i) {
                var channel = chart.channels[i];
                return {
                    label: series.label, color: series.color,
                    data: channel.times.map(function (time, k) { return [time, scope.inUnits(channel, channel.values[k])]; })
                };
            }));
        });
    });
})();
