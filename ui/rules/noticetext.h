/// \file
/// Makes a notice from the network safe to show.
#ifndef VELBRIN_UI_NOTICETEXT_H
#define VELBRIN_UI_NOTICETEXT_H

#include <QString>

/// The notice with its plain markup (bold, paragraphs, headings, lists), without attributes and any other markup, and
/// cut after 4000 characters. Of links the http or https address stays, as a text to be read. What is left is laid out
/// in a moment: a few dozen nested tables, or a long picture, would keep the window busy for minutes, and with it the
/// Esc key.
QString noticeText(const QString &html);

#endif
