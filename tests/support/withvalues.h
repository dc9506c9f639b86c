/// \file
/// Settings and recorded channels of which a test says no more than it needs.
#ifndef VELBRIN_TESTS_WITHVALUES_H
#define VELBRIN_TESTS_WITHVALUES_H

#include "capturedata.h"
#include "parameters.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// The list with these values; what it does not have yet is added.
inline Parameters withValues(Parameters list, std::initializer_list<std::pair<const char *, double>> values)
{
    for (const auto &[name, value] : values) {
        const QString key = QString::fromLatin1(name);
        SingleParam setting = list.getParam(key);
        const bool isNew = setting.name != key;
        setting.name = key;
        setting.value = value;
        if (isNew)
            list.addParameter(setting);
        else
            list.replaceParam(setting);
    }
    return list;
}

/// An enabled channel with these values, one after the other.
inline CaptureData channelOf(const char *key, const std::vector<double> &values = {}, double samplePeriod = 0.001)
{
    CaptureData channel;
    channel.key = channel.name = QString::fromLatin1(key);
    channel.enabled = true;
    for (const double value : values)
        channel.samples.append({channel.samples.size() * samplePeriod, value});
    return channel;
}

#endif
