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

void EditedSettings::edit(const QString &name, double value)
{
    SingleParam p = m_edited.getParam(name);
    p.value = value;
    m_edited.replaceParam(p);
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

QList<Difference> EditedSettings::differences(const QString &modelName) const
{
    return m_driveWasRead ? ::differences(m_drive, m_edited, m_catalogue, modelName) : QList<Difference>();
}

QList<Difference> differences(const Parameters &drive, const Parameters &wanted, const Parameters &catalogue,
                              const QString &modelName)
{
    QList<Difference> found;
    for (int i = 0; i < wanted.getParamCount(); ++i) {
        const SingleParam edited = wanted.getParam(i);
        const SingleParam held = drive.getParam(edited.name);
        if (catalogue.getParam(edited.name).readonly || held.name != edited.name || !held.supportedInDevice(modelName))
            continue;
        if (held.convertToDeviceScale(held.value) != edited.convertToDeviceScale(edited.value))
            found.append({edited.name, held.value, edited.value});
    }
    return found;
}
