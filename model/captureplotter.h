/// \file
/// Turns a finished capture into a page with one zoomable chart per channel group, and into a CSV file.
#ifndef VELBRIN_MODEL_CAPTUREPLOTTER_H
#define VELBRIN_MODEL_CAPTUREPLOTTER_H

#include "capturedata.h"

/// Stateless. Disabled channels are left out everywhere; numbers have six significant digits and a decimal point
/// whatever the locale. All columns end with the shortest one, since the recorder may have stored one more sample for
/// the first channels than for the last.
///
/// Groups become element ids and script variables, keys become script variables: both must be identifiers, and no key
/// may equal a group. The page draws with the scripts in a "flot" folder; load it with the base address
/// "file:///" + working directory + "/flot/examples/".
class CapturePlotter
{
public:
    /// The element that the group's chart is drawn into.
    QString getPlotPlaceholderString(const QString &group) const;
    /// "var KEY=[[time,value],...];" of the enabled channel with this key.
    QString generateDataString(const QList<CaptureData> &captures, const QString &key) const;
    /// Draws the chart of a group and redraws it when a part of it is selected.
    QString getPlottingScript(const QList<CaptureData> &captures, const QString &group) const;
    /// The whole page. `paramsHtml` (Parameters::getParamsHTMLList) goes below the charts, `driveModel` into the title.
    QString generatePlotPage(const QList<CaptureData> &captures, const QString &paramsHtml,
                             const QString &driveModel) const;

    /// Semicolon-separated: a line of names, then one line per sample, time in seconds first.
    QByteArray captureDataCSV(const QList<CaptureData> &captures) const;
    /// The same as a file. False when it could not be written whole; an older file then stays as it was.
    bool saveCaptureDataCSV(const QList<CaptureData> &captures, const QString &fileName) const;
};

#endif
