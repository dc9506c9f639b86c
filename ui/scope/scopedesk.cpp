#include "scopedesk.h"

#include "capturefile.h"
#include "scopecontext.h"

#include <QFileInfo>
#include <QUrl>

#include <cmath>

ScopeDesk::ScopeDesk(QObject *parent) : QObject(parent)
{
    connect(&m_studies, &CaptureStudies::finished, this, &ScopeDesk::figuresCame);
}

void ScopeDesk::captured(const CaptureRecord &record)
{
    keep(record, QString());
}

QString ScopeDesk::openFile(const QString &fileName)
{
    CaptureRecord record;
    const QString problem = readCaptureFile(fileName, m_known, &record);
    if (problem.isEmpty())
        keep(record, QFileInfo(fileName).fileName());
    return problem;
}

void ScopeDesk::keep(const CaptureRecord &record, const QString &file)
{
    m_studies.begin(m_history.add(record, file), record);
    redraw(true);
    emit historyChanged();
}

void ScopeDesk::redraw(bool keepZoom)
{
    const KeptCapture *shown = m_history.shown();
    emit plotReady(plotPageOf(shown ? shown->record : CaptureRecord()), scopeContext(m_history), keepZoom);
}

void ScopeDesk::show(int id)
{
    if (!m_history.show(id))
        return;
    redraw(true);
    emit historyChanged();
}

void ScopeDesk::layUnder(int id)
{
    const bool isShown = m_history.shown() && m_history.shown()->id == id;
    if (isShown && m_history.newestBut(id) == 0)
        return; // nothing to lie under
    if (isShown)
        show(m_history.newestBut(id));
    if (m_history.layUnder(id))
        emit scopeChanged(scopeContext(m_history));
}

void ScopeDesk::setNote(int id, const QString &note)
{
    if (!m_history.setNote(id, note))
        return;
    if (m_history.shown() && m_history.shown()->id == id)
        emit scopeChanged(scopeContext(m_history));
    emit historyChanged();
}

void ScopeDesk::figuresCame(int id, const CaptureFigures &figures)
{
    m_history.setFigures(id, figures);
    if (m_history.shown() && m_history.shown()->id == id)
        emit scopeChanged(figuresContext(*m_history.shown()));
    emit historyChanged();
}

bool ScopeDesk::follow(const QUrl &url)
{
    if (url.scheme() != QLatin1String("tdext") || url.host() != QLatin1String("scope"))
        return false;
    const QString action = url.path().section(QLatin1Char('/'), 1, 1);
    const int id = url.path().section(QLatin1Char('/'), 2, 2).toInt();
    if (action == QLatin1String("show"))
        show(id);
    else if (action == QLatin1String("under"))
        layUnder(id);
    else if (action == QLatin1String("open-out"))
        emit openOutWanted();
    else if (action == QLatin1String("open-file"))
        emit openFileWanted();
    else if (action == QLatin1String("take-feed-forward"))
        takeFeedForward();
    return true;
}

void ScopeDesk::takeFeedForward()
{
    const KeptCapture *shown = m_history.shown();
    if (!shown || !shown->figures || !shown->figures->axis || !shown->figures->axis->isUsable())
        return;
    const AxisSheet &sheet = *shown->figures->axis;
    emit settingsWanted(
        {{QStringLiteral("AFF"), std::round(sheet.aff.value)}, {QStringLiteral("VFF"), std::round(sheet.vff.value)}});
}
