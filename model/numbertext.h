/// \file
/// How the value of a setting is written in a sentence.
#ifndef VELBRIN_MODEL_NUMBERTEXT_H
#define VELBRIN_MODEL_NUMBERTEXT_H

#include <QString>

/// As many of 15 digits as it takes.
inline QString shortNumber(double value)
{
    return QString::number(value, 'g', 15);
}

#endif
