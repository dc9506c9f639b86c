/// \file
/// What the rooms with Qt's core are compiled with, compiled once: headers that do not change. A source still names
/// what it uses.
#ifndef VELBRIN_MODEL_PRECOMPILED_H
#define VELBRIN_MODEL_PRECOMPILED_H

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#endif
