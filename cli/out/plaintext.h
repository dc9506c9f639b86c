/// \file
/// The session's texts are small HTML fragments; a terminal shows plain text.
#ifndef VELBRIN_CLI_PLAINTEXT_H
#define VELBRIN_CLI_PLAINTEXT_H

#include <QString>

/// `html` as plain text: "<br>" and paragraphs become line breaks, other tags vanish, entities become their characters.
/// A link keeps its address, in brackets behind its text unless the text is the address ("?" gives way to it). Blank
/// lines are dropped.
QString plainText(const QString &html);

#endif
