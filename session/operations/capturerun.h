/// \file
/// The drive's recorder: arming it and reading what it caught.
#ifndef VELBRIN_SESSION_CAPTURERUN_H
#define VELBRIN_SESSION_CAPTURERUN_H

#include "operation.h"

class CaptureRun : private Operation
{
public:
    /// `poll`: see StopService.
    CaptureRun(OperationContext &context, std::function<bool()> poll) : Operation(context), m_poll(std::move(poll)) {}

    void announceCapture(CaptureState state);
    void startCapture(const ScopeRequest &request);
    /// Disarms the recorder; nothing while none is armed.
    void callOffCapture();
    /// In what was just polled: queues the download when the recorder is full.
    void lookForEnd(const DriveState &state);
    void downloadCapture();
    /// A connection ends or begins; what was armed is told to be over.
    void reset();

private:
    void initScope();
    bool selectScopeMemory();
    bool downloadScope(int words);
    bool downloadScopeWords(int first, int count);
    bool askScopeWords(int first, int count, QList<qint16> &words);

    std::function<bool()> m_poll;
    struct Run
    {
        ScopeRequest request;      ///< as armed: what is ticked while the recorder waits is for the next capture
        double samplePeriod = 0.0; ///< s
        bool pending = false;      ///< armed and not read yet
    } m_run;
};

#endif
