/// \file
/// The session's list of parameters: reading it from the drive, writing it.
#ifndef VELBRIN_SESSION_PARAMETERTRANSFER_H
#define VELBRIN_SESSION_PARAMETERTRANSFER_H

#include "operation.h"

class ParameterTransfer : private Operation
{
public:
    explicit ParameterTransfer(OperationContext &context) : Operation(context) {}

    void getParams();
    /// Settings only, however the records are named: applying settings enables, moves and restarts nothing.
    void setParams(const WriteRequest &request);

private:
    // Reading (parametertransfer.cpp)
    ZbStatus requestParamStruct(const SingleParam &param);
    bool fillParamStruct(SingleParam &param);
    bool readRecord(SingleParam &param);
    bool readRecords(Parameters &list);
    bool isParamAvailableInCurrentDevice(const SingleParam &param) const;

    // Writing (parameterwriting.cpp)
    bool refuseCommand(const QString &name, int address);
    bool refuseValue(const SingleParam &param, double deviceValue);
    SingleParam withDriveLimits(SingleParam param) const;
    Reply writeAndLook(int address, long value);
    void writeRecord(const SingleParam &param);
    void writeRecords(const Parameters &list);
    void setOverriddenParam(const Parameters &list, unsigned slot);
    void noteWrite(const QString &name, Reply reply);
    void noteHeld(const SingleParam &param);

    int m_controlMode = 0; ///< CM as last read or written
    QString m_lastWritten; ///< name of the record that the running write has surely brought to the drive
};

#endif
