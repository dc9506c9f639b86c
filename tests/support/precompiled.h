/// \file
/// What every test program is compiled with, compiled once: the test framework, the standard library and Qt's core.
/// A source still names what it uses.
#ifndef VELBRIN_TESTS_PRECOMPILED_H
#define VELBRIN_TESTS_PRECOMPILED_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#endif
