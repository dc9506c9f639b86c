/// \file
/// The program's version, as shown, stored in settings files and sent with update queries.
#ifndef VELBRIN_MODEL_VERSION_H
#define VELBRIN_MODEL_VERSION_H

constexpr char VELBRIN_VERSION[] = "1.9.0";
constexpr int VELBRIN_VERSION_INT = 10900;

#endif
