// A legend above each chart in place of the one inside it, which covers what it stands on. A click hides a channel.
(function () {
    "use strict";
    var scope = window.velbrinScope;
    if (!scope)
        return;

    scope.hiddenChannels = {}; // by key

    function toggle(channel) {
        scope.hiddenChannels[channel.key] = !scope.hiddenChannels[channel.key];
        scope.changed();
    }

    scope.afterAttach.push(function () {
        scope.charts.forEach(function (chart) {
            chart.plot.getOptions().legend.show = false;
            jQuery(chart.element).find(".legend").remove();
            chart.legend = scope.element("p", { "class": "scope-legend", "data-chart": chart.id });
            chart.element.parentNode.insertBefore(chart.legend, chart.element);
            chart.element.classList.add("scope-chart");
            chart.legend.addEventListener("click", function (event) {
                var entry = event.target.closest("button");
                if (entry)
                    toggle(chart.channels[Number(entry.dataset.channel)]);
            });
        });
    });

    scope.afterChange.push(function () {
        scope.charts.forEach(function (chart) {
            chart.legend.textContent = "";
            chart.channels.forEach(function (channel, i) {
                var unit = scope.unitOf(channel).unit;
                var swatch = scope.element("span", { "class": "scope-swatch", style: "background:" + channel.color });
                var entry = scope.element("button", { type: "button", "data-channel": i,
                    "aria-pressed": String(!scope.hiddenChannels[channel.key]), title: scope.text("Show or hide this channel") },
                    [swatch, channel.name + (unit ? " [" + unit + "]" : "")]);
                chart.legend.appendChild(entry);
                chart.plot.getData()[i].lines.show = !scope.hiddenChannels[channel.key];
            });
        });
        jQuery("p.unitnote").toggle(!scope.context.units || !(scope.unitSystem().units || {}).vel);
    });
})();
