/// \file
/// The log and the buttons of a firmware upgrade.
#ifndef VELBRIN_UI_FIRMWAREDIALOG_H
#define VELBRIN_UI_FIRMWAREDIALOG_H

#include "ui_firmwareupgradedlg.h"

#include <QDialog>

/// While an upgrade runs nothing closes it; otherwise Esc and the close box mean the same as its "Close".
class FirmwareDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FirmwareDialog(QWidget *parent);

    /// Shows the dialog with an empty log, unless it is open already.
    void begin();
    void appendMessage(const QString &html);
    /// How much of the images has been uploaded, in bytes.
    void setProgress(int sent, int total);
    /// An upgrade has begun: only its end brings the buttons back.
    void setRunning();
    /// The upgrade ended, well or not: the log can be read and the dialog closed.
    void setFinished();
    /// Hides the dialog and forgets its log.
    void finish();
    bool isRunning() const;

    Ui_firmwareUpgradeDlg form;

    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
};

#endif
