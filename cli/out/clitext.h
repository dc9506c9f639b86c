/// \file
/// The texts of the command line.
#ifndef VELBRIN_CLI_CLITEXT_H
#define VELBRIN_CLI_CLITEXT_H

#include <QString>

/// A text as it stands: the command line is English in every language, since scripts read it. Through here all the
/// same, so that a text that a user sees can be told from a name.
inline QString tr(const char *text)
{
    return QString::fromUtf8(text);
}

#endif
