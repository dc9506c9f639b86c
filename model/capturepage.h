/// \file
/// The capture inside the plot page: one HTML file that shows the charts and can be opened again.
#ifndef VELBRIN_MODEL_CAPTUREPAGE_H
#define VELBRIN_MODEL_CAPTUREPAGE_H

#include "capturejson.h"

/// The plot page's text with the block of the capture before its end, as
/// `<script type="application/json" id="velbrin-capture">`. Nothing in the block can end the element or begin markup:
/// "<", ">" and "&" are written as JSON escapes. Works before and after the page's scripts have been put into it.
QString withCaptureBlock(const QString &page, const QJsonObject &block);

/// The text of the block inside a page (UTF-8), empty when there is none. Looks for the last one: the writer puts it at
/// the end, behind whatever texts the page holds.
QByteArray captureBlockOf(const QByteArray &page);

#endif
