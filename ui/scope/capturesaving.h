/// \file
/// A capture as a file: which formats there are, and how they are written. Pictures are drawn by the plot view.
#ifndef VELBRIN_UI_CAPTURESAVING_H
#define VELBRIN_UI_CAPTURESAVING_H

#include "capturehistory.h"

enum class CaptureFormat {
    None,    ///< the ending is none of ours
    Picture, ///< .png
    Page,    ///< .html, self-contained, can be opened again
    Columns, ///< .csv with semicolons
    Commas,  ///< .csv for spreadsheets: commas, a row of units
};

/// For the file dialog.
QString captureFilters();
/// The ending decides, in any case of letters; which kind of ".csv" it is the filter that was chosen.
CaptureFormat captureFormatOf(const QString &fileName, const QString &filter);
/// Writes any but a picture, whole or not at all. Returns an empty text, or why not, without markup. Any thread: it may
/// have to work out the figures.
QString saveCapture(const KeptCapture &capture, CaptureFormat format, const QString &fileName);

#endif
