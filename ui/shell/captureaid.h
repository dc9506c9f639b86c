/// \file
/// Beside the capture button: how much the record holds, and the way out of a capture that waits.
#ifndef VELBRIN_UI_CAPTUREAID_H
#define VELBRIN_UI_CAPTUREAID_H

#include "capturestate.h"
#include "recordlength.h"

#include <QObject>
#include <QVector>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

/// Adds a line and a button to the capture controls. User-interface thread.
class CaptureAid : public QObject
{
    Q_OBJECT

public:
    /// What the line is made of; `move` gives the least time of the move that the page would make, s.
    struct Controls
    {
        QGridLayout *layout;
        QComboBox *rate;
        QVector<QCheckBox *> channels;
        std::function<double()> move;
    };
    CaptureAid(const Controls &controls, QObject *parent);

public slots:
    /// The rate, the channels, a target or the drive's limits have changed.
    void refresh();
    void captureStateChanged(CaptureState state);

signals:
    void callOffAsked();

private:
    Controls m_controls;
    QLabel *m_length;
    QPushButton *m_callOff;
};

#endif
