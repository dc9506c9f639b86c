/// \file
/// How the value of a setting is written in a sentence.
#ifndef NUMBERTEXT_H
#define NUMBERTEXT_H

#include <QString>

/// As many of 15 digits as it takes.
inline QString shortNumber(double value)
{
    return QString::number(value, 'g', 15);
}

#endif
