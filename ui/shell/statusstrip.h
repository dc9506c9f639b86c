/// \file
/// The strip along the whole window: which drive, in which state, and the three buttons for it.
#ifndef VELBRIN_UI_STATUSSTRIP_H
#define VELBRIN_UI_STATUSSTRIP_H

#include "driveheadline.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;
class StateShape;

/// Shows what the session has polled and computes nothing of its own. It touches a label only when its text changes,
/// so a poll that brings nothing new costs next to nothing. When polls stop it says since when. A screen reader gets
/// one line, the name of the large word. User-interface thread.
class StatusStrip : public QWidget
{
    Q_OBJECT

public:
    explicit StatusStrip(QWidget *parent = nullptr);

    /// Which drive is about to be connected.
    void setBusAddress(int address);
    /// As read from the drive, 0 while it is not known.
    void setSerialNumber(int serialNumber);
    /// The user has asked for the end of the connection that is about to end: nothing of it is worth keeping.
    void expectEnd() { m_news.leftByUser = m_news.connected; }
    /// What the buttons can do: disabling also reaches a drive that is not connected, enabling needs its firmware.
    void setButtons(bool mayEnable, bool mayDisable, bool mayClear);
    /// Room behind the first line, for the marks that say where the values live.
    void addSecondLine(QWidget *widget);
    /// At the right end of that line.
    void addToSecondLine(QWidget *widget) { m_secondLine->addWidget(widget); }

    const DriveHeadline &shown() const { return m_shown; }

public slots:
    void statePolled(const DriveState &state);
    void connectionChanged(bool connected);

signals:
    void enableAsked();
    void disableAsked();
    void clearFaultsAsked();
    /// The "?" beside a fault: the bit that it is about.
    void faultHelpAsked(int faultBit);

protected:
    void changeEvent(QEvent *event) override;

private:
    QLabel *addLabel(QHBoxLayout *row, QLabel *label, const char *name);
    void addFaultHelp(QHBoxLayout *row);
    void addButtons(QHBoxLayout *row);
    QPushButton *addButton(QHBoxLayout *row, const char *name, const QString &text, const QString &toolTip);
    void lookAtAge();
    void refresh();
    void keepDetail(const DriveHeadline &line);
    void colourWord();

    DriveNews m_news;
    DriveHeadline m_shown;
    QTimer m_ageTimer;
    QElapsedTimer m_sinceLook; ///< at the age of what is shown
    QHBoxLayout *m_secondLine;
    StateShape *m_shape = nullptr;
    QLabel *m_word = nullptr;
    QLabel *m_detail;
    QToolButton *m_faultHelp;
    QLabel *m_identity;
    QLabel *m_figures;
    QPushButton *m_enable;
    QPushButton *m_disable;
    QPushButton *m_clear;
};

#endif
