#include "settingguide.h"

#include "parameterpages.h"
#include "settingfields.h"
#include "settingfinder.h"

#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

SettingGuide::SettingGuide(QObject *parent, const Places &places) : QObject(parent), m_places(places) {}

void SettingGuide::goTo(const QString &name)
{
    const SettingField *field = m_places.fields.find(name);
    const bool hasControl = field && field->control && field->name == name;
    if (hasControl && field->page >= 0)
        m_places.pageSelector->setCurrentRow(field->page, QItemSelectionModel::ClearAndSelect);
    else if (hasControl && field->isEditable)
        emit rawParametersWanted();
    const QString place = helpPlaceOf(m_places.fields, name);
    emit helpWanted(place.section(QLatin1Char('#'), 0, 0), place.section(QLatin1Char('#'), 1));
    if (hasControl)
        showControl(field->control, field->page, name);
}

void SettingGuide::showControl(QWidget *control, int page, const QString &name)
{
    const QWidget *around = page >= 0 ? m_places.pages->widget(page) : control->window();
    if (!control->isVisibleTo(around) && !m_places.parameters->showsAdvanced())
        m_places.parameters->toggleAdvanced();
    if (!control->isVisibleTo(around)) {
        emit report(tr("[%1] is not shown: this model lacks it, or other settings leave it without effect").arg(name));
        return;
    }
    if (!control->isEnabled())
        emit report(tr("[%1] is not on this model").arg(name));
    for (QWidget *up = control; up; up = up->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(up))
            area->ensureWidgetVisible(control);
    }
    control->setFocus(Qt::ShortcutFocusReason);
}
