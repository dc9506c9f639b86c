#include "editedsettings.h"

#include <cmath>

void EditedSettings::accept(const Parameters &list, Source source)
{
    m_edited = list;
    m_source = source;
    m_shown.clear();
    m_fileLoaded = m_fileLoaded || source == Source::File;
    if (source == Source::Drive || source == Source::PartOfDrive)
        m_driveWasRead = source == Source::Drive;
}

void EditedSettings::edit(int index, double control)
{
    SingleParam p = m_edited.getParam(index);
    const auto shown = m_shown.constFind(p.name);
    p.value = shown != m_shown.constEnd() && shown->control == control ? shown->exact : control;
    m_edited.replaceParam(p, index);
}

void EditedSettings::settle()
{
    m_settled.clear();
    for (int i = 0; i < m_edited.getParamCount(); ++i) {
        const SingleParam p = m_edited.getParam(i);
        m_settled.insert(p.name, p.value);
    }
    m_fileLoaded = false;
}

void EditedSettings::applied()
{
    settle();
    m_saved = false;
}

bool EditedSettings::isPending() const
{
    if (m_fileLoaded)
        return true;
    for (int i = 0; i < m_edited.getParamCount(); ++i) {
        const SingleParam p = m_edited.getParam(i);
        const auto settled = m_settled.constFind(p.name);
        // A record that was never settled is not an edit: the list has just grown from empty.
        if (settled == m_settled.constEnd() || p.value == *settled)
            continue;
        if (!(std::isnan(p.value) && std::isnan(*settled)))
            return true;
    }
    return false;
}

QList<EditedSettings::Difference> EditedSettings::differences() const
{
    QList<Difference> found;
    for (int i = 0; m_driveWasRead && i < m_edited.getParamCount(); ++i) {
        const SingleParam wanted = m_edited.getParam(i);
        const SingleParam held = m_drive.getParam(wanted.name);
        if (wanted.readonly || held.name != wanted.name)
            continue;
        if (held.convertToDeviceScale(wanted.value) != held.convertToDeviceScale(held.value))
            found.append({wanted.name, held.value, wanted.value});
    }
    return found;
}
