#include "capturehistory.h"

#include "capturejson.h"

#include <QHash>
#include <QLocale>

#include <algorithm>

namespace {

bool isSetting(const SingleParam &parameter)
{
    return !parameter.readonly;
}

} // namespace

QList<SettingDifference> settingDifferences(const Parameters &older, const Parameters &present)
{
    QHash<QString, double> values;
    for (int i = 0; i < older.getParamCount(); ++i) {
        if (isSetting(older.getParam(i)))
            values.insert(older.getParam(i).name, older.getParam(i).value);
    }
    QList<SettingDifference> differences;
    for (int i = 0; i < present.getParamCount(); ++i) {
        const SingleParam now = present.getParam(i);
        const auto before = values.constFind(now.name);
        if (isSetting(now) && before != values.constEnd() && *before != now.value)
            differences.append({now.name, *before, now.value});
    }
    return differences;
}

QStringList settingsThatVary(const QList<KeptCapture> &captures)
{
    QStringList names;
    for (const KeptCapture &capture : captures) {
        for (const SettingDifference &difference :
             settingDifferences(captures.first().record.settings, capture.record.settings)) {
            if (!names.contains(difference.name))
                names.append(difference.name);
        }
    }
    return names;
}

QString settingText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

int CaptureHistory::add(const CaptureRecord &record, const QString &file)
{
    m_all.append({++m_lastId, record, file, std::nullopt});
    m_shown = m_lastId;
    const auto mayGo = [this](const KeptCapture &capture) { return capture.id != m_shown && capture.id != m_under; };
    while (m_all.size() > kept)
        m_all.erase(std::find_if(m_all.begin(), m_all.end(), mayGo));
    return m_lastId;
}

bool CaptureHistory::show(int id)
{
    if (!find(id))
        return false;
    if (m_under == id) // they change places
        m_under = m_shown;
    m_shown = id;
    return true;
}

bool CaptureHistory::layUnder(int id)
{
    if (id != 0 && (id == m_shown || !find(id)))
        return false;
    m_under = id;
    return true;
}

bool CaptureHistory::setNote(int id, const QString &note)
{
    for (KeptCapture &capture : m_all) {
        if (capture.id != id)
            continue;
        capture.record.note = note.left(longestNote);
        return true;
    }
    return false;
}

void CaptureHistory::setFigures(int id, const CaptureFigures &figures)
{
    for (KeptCapture &capture : m_all) {
        if (capture.id == id)
            capture.figures = figures;
    }
}

int CaptureHistory::newestBut(int id) const
{
    for (auto capture = m_all.crbegin(); capture != m_all.crend(); ++capture) {
        if (capture->id != id)
            return capture->id;
    }
    return 0;
}

const KeptCapture *CaptureHistory::find(int id) const
{
    const auto found =
        std::find_if(m_all.cbegin(), m_all.cend(), [id](const KeptCapture &capture) { return capture.id == id; });
    return found == m_all.cend() ? nullptr : &*found;
}
