#include "reach.h"

#include "connection.h"

#include <QCoreApplication>
#include <QVariant>
#include <QWidget>

Reach reachOf(const Connection &session)
{
    if (!session.isConnected())
        return Reach::NoDrive;
    return session.isInFirmwareUpgradeMode() ? Reach::Bootloader : Reach::Firmware;
}

void enableByReach(QWidget *control, Reach reach, bool needsDrive)
{
    const char *const usual = "usualToolTip";
    control->setEnabled(reach == Reach::Firmware || (reach == Reach::NoDrive && !needsDrive));
    if (!control->property(usual).isValid())
        control->setProperty(usual, control->toolTip());
    control->setToolTip(reach == Reach::Bootloader
                            ? QCoreApplication::translate("MW", "Not while the drive is in firmware upgrade mode")
                            : control->property(usual).toString());
}
