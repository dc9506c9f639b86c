/// \file
/// The captures of this session: which one is shown, which one lies under it, and the figures of each.
#ifndef VELBRIN_UI_CAPTUREHISTORY_H
#define VELBRIN_UI_CAPTUREHISTORY_H

#include "capturefigures.h"

#include <QStringList>

#include <optional>

struct KeptCapture
{
    int id = 0; ///< counts from 1, never used twice
    CaptureRecord record;
    QString file; ///< name without its folder of the file that it was opened from; empty when captured here
    std::optional<CaptureFigures> figures; ///< once they are worked out
};

/// A setting that two captures, or a capture and the pages, do not have in common.
struct SettingDifference
{
    QString name;
    double older = 0.0;
    double present = 0.0;
};

/// Writable settings that differ between two lists, in the order of the second. A setting that one of them lacks is no
/// difference: it is not known.
QList<SettingDifference> settingDifferences(const Parameters &older, const Parameters &present);

/// Names of the writable settings that are not the same in all of these captures, in catalogue order.
QStringList settingsThatVary(const QList<KeptCapture> &captures);

/// A value of a setting as text, as short as it can be without losing a digit that was typed.
QString settingText(double value);

/// Plain values; one thread.
class CaptureHistory
{
public:
    static constexpr int kept = 100; ///< about 50 KB each
    static constexpr int listed = 8; ///< of which the plot view offers this many

    /// Keeps a capture and shows it. The oldest go, but never the one that is shown or lies under it. Returns its id.
    int add(const CaptureRecord &record, const QString &file = {});
    /// False, and no change, when there is none with this id.
    bool show(int id);
    /// 0 takes the older one away. The one that is shown cannot lie under itself.
    bool layUnder(int id);
    /// The user's own words; no more of them than a file may hold. False when there is none with this id.
    bool setNote(int id, const QString &note);
    void setFigures(int id, const CaptureFigures &figures);

    /// The oldest first.
    const QList<KeptCapture> &all() const { return m_all; }
    const KeptCapture *find(int id) const;
    /// Id of the newest that is not this one, 0 when there is none.
    int newestBut(int id) const;
    const KeptCapture *shown() const { return find(m_shown); }
    const KeptCapture *under() const { return find(m_under); }

private:
    QList<KeptCapture> m_all;
    int m_lastId = 0;
    int m_shown = 0;
    int m_under = 0;
};

#endif
