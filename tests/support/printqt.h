/// \file
/// Makes GoogleTest print Qt's strings as text instead of bytes.
#ifndef VELBRIN_TESTS_PRINTQT_H
#define VELBRIN_TESTS_PRINTQT_H

#include <QString>
#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

#endif
