#include "pendingchanges.h"

#include <cmath>

void PendingChanges::settle(const Parameters &controls)
{
    m_baseline.clear();
    for (int i = 0; i < controls.getParamCount(); ++i) {
        const SingleParam p = controls.getParam(i);
        m_baseline.insert(p.name, p.value);
    }
    m_fileLoaded = false;
}

bool PendingChanges::isPending(const Parameters &controls) const
{
    if (m_fileLoaded)
        return true;
    for (int i = 0; i < controls.getParamCount(); ++i) {
        const SingleParam p = controls.getParam(i);
        const auto settled = m_baseline.find(p.name);
        // A record that was never settled is not an edit: the list has just grown from empty.
        if (settled == m_baseline.end() || p.value == *settled)
            continue;
        if (!(std::isnan(p.value) && std::isnan(*settled)))
            return true;
    }
    return false;
}
