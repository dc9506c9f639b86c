/// \file
/// What the operations of a session have to tell. Connection passes all of it on under the same names, which its header
/// explains; a test listens here.
#ifndef VELBRIN_SESSION_SESSIONEVENTS_H
#define VELBRIN_SESSION_SESSIONEVENTS_H

#include "capturedata.h"
#include "capturestate.h"
#include "disableoutcome.h"
#include "drivestate.h"
#include "message.h"
#include "nodetype.h"
#include "parameters.h"

#include <QObject>

/// Emitted on the worker thread.
class SessionEvents : public QObject
{
    Q_OBJECT

signals:
    void statusChanged(bool connected, QString text);
    void parametersRetreived(Parameters list, bool loadedFromFile);
    void error(QString text);
    void plotReady(QList<CaptureData> capture);
    void updateCaptureButtonText(QString text);
    void physInputsUpdated(QString html);
    void statusRegisterUpdated(QString html);
    void faultRegisterUpdated(QString html);
    void availableBusNodes(QList<NodeType> nodes);
    void firmwareUpgradeMsg(QString html, bool done, bool failed);
    void firmwareUploadProgress(int sentBytes, int totalBytes);
    void suggestDeviceRestart();
    void setpointChanged(double setpoint);
    void busy(bool busy, bool nonBlocking);
    void setUnsavedState();
    void controlModeChanged(int mode);
    void disableAnswered(bool acknowledged);
    void disableFinished(DisableOutcome outcome);
    void enableStatePolled(bool enabled);
    void message(Message message);
    void statePolled(DriveState state);
    void driveParametersChanged(Parameters list);
    void captureStateChanged(CaptureState state);
    void scanProgress(int asked, int total);
    void savedToFlash(bool done);
    void settingsFileSaved(QString fileName, Parameters list);
};

#endif
