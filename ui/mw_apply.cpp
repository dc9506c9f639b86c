// From the controls to the drive, to its flash, to a settings file; and the questions before edits would be lost.
#include "errorwindow.h"
#include "mw.h"
#include "mwforms.h"
#include "numberbox.h"
#include "ui_overrideparams.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

void MW::updateApplyButtonState()
{
    setParams();
    // A number that is just being typed counts with the next Apply.
    const NumberField *typing = NumberField::of(QApplication::focusWidget());
    const bool pending = m_settings.isPending() || (typing && typing->holdsNewNumber());
    QPushButton *button = m_form->apply_button;
    button->setDefault(pending);
    button->setText(pending ? tr("Apply settings (parameters changed)") : tr("Apply settings [Alt+A]"));
}

bool MW::areParamsChanged()
{
    setParams();
    return m_settings.isPending();
}

// What is being typed counts as soon as the field loses the keyboard; a shortcut does not take it away by itself.
bool MW::commitEditedField()
{
    QWidget *field = focusWidget();
    if (!field || !field->hasFocus())
        return true;
    field->clearFocus();
    field->setFocus();
    return !anyNumberRefused({field});
}

bool MW::anyNumberRefused(std::initializer_list<const QWidget *> boxes)
{
    bool refused = false;
    for (const QWidget *box : boxes) {
        NumberField *field = NumberField::of(box);
        const QString why = field ? field->takeRefusal() : QString();
        refused = refused || !why.isEmpty();
    }
    return refused;
}

bool MW::valuesHaveArrived(const QString &refusal)
{
    // Before the first full read the controls hold no value of this drive, and no limits of it either.
    if (!m_settings.driveWasRead())
        statusBar()->showMessage(refusal);
    return m_settings.driveWasRead();
}

void MW::on_apply_button_clicked()
{
    if (commitEditedField()) // what was typed is not what would be applied
        applyToDrive();
}

bool MW::applyToDrive()
{
    if (!m_form->apply_button->isEnabled())
        return false;
    if (!valuesHaveArrived(tr("Nothing applied: the settings of this drive have not been read yet")))
        return false;
    doParamSanityChecks();
    m_connection.setWatchedParameter(m_overridesForm->customParamDisplay->value());
    setParams();
    m_settings.applied();
    m_connection.setParams(m_settings.edited());
    m_connection.command(Connection::TaskSetParams);
    m_connection.checkErrors();
    updateUnitLabels();
    updateApplyButtonState();
    return true;
}

void MW::on_saveToFlash_clicked()
{
    // An abort here still saves: what is in the drive's memory is worth keeping whatever becomes of the edits.
    checkIfParamsChangedAndAskUser(AskWithAbort);
    if (!valuesHaveArrived(tr("Nothing saved: the settings of this drive have not been read yet")))
        return;
    m_connection.command(Connection::TaskSaveToFlash);
    m_settings.setSaved(true);
}

void MW::setUnsavedStatus()
{
    m_settings.setSaved(false);
}

bool MW::checkIfParamsChangedAndAskUser(AskForApplyMode mode)
{
    commitEditedField();
    setParams();
    if (!m_settings.isPending() || !driveRunsItsFirmware())
        return false;
    const QString text = tr("Some paramets have been changed since last Apply. Changed settings won't take effect "
                            "before Apply.");
    switch (mode) {
    case AskBeforeTesting:
        return askBeforeTesting(text);
    case AskWithAbort:
        return askWithAbort(text);
    }
    return false;
}

bool MW::askBeforeTesting(const QString &text)
{
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), text, QMessageBox::Yes | QMessageBox::No, this);
    box.setInformativeText(tr("Do you wish to apply changes to drive now?"));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() == QMessageBox::Yes)
        on_apply_button_clicked();
    return false;
}

bool MW::askWithAbort(const QString &text)
{
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), text, QMessageBox::Abort, this);
    box.setInformativeText(tr("Do you wish to apply changes to drive now? You may also choose Abort to go back."));
    const QPushButton *goOn = box.addButton(tr("Continue without applying"), QMessageBox::DestructiveRole);
    const QPushButton *apply = box.addButton(tr("Apply settings"), QMessageBox::YesRole);
    box.setDefaultButton(QMessageBox::Abort); // a stray Return neither writes to the drive nor loses an edit
    box.exec();
    if (box.clickedButton() == goOn) {
        qDebug() << "dont apply";
        m_settings.settle();
        return false;
    }
    if (box.clickedButton() == apply) {
        qDebug() << "apply";
        return !applyToDrive(); // a refused apply must not cost the edits
    }
    qDebug() << "abort";
    return true;
}

bool MW::checkIfParamsSavedAndAskUser()
{
    setParams();
    if (m_settings.isSaved() || !driveRunsItsFirmware())
        return false;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"),
                    tr("Some paramets have been changed since last Save to drive. Last changes will be lost on drive "
                       "power-off if not saved."),
                    QMessageBox::Abort, this);
    box.setInformativeText(
        tr("Do you wish to save active settings to drive now? You may also choose Abort to go back."));
    const QPushButton *discard = box.addButton(tr("Discard changes"), QMessageBox::DestructiveRole);
    const QPushButton *save = box.addButton(tr("Save to drive now"), QMessageBox::YesRole);
    box.setDefaultButton(QMessageBox::Abort);
    box.exec();
    qDebug() << "choice" << (box.clickedButton() ? box.clickedButton()->text() : QString());
    if (box.clickedButton() == discard) {
        qDebug() << "dontsave";
        m_settings.settle(); // not the unsaved state: the next close asks again
        return false;
    }
    if (box.clickedButton() == save) {
        on_saveToFlash_clicked();
        qDebug() << "save";
        return false;
    }
    qDebug() << "abort";
    return true;
}

void MW::on_save_settings_to_file_clicked()
{
    // The shortcut reaches the slot even when the button is disabled.
    if (m_connection.isConnected() && !valuesHaveArrived(tr("Nothing saved: the settings of this drive have not been "
                                                            "read yet")))
        return;
    if (!commitEditedField())
        return;
    const QString file = askFile(QFileDialog::AcceptSave, tr("Save settings to file"),
                                 m_lastDirectory + QLatin1String("/settings.drc"), tr("Drive settings (*.drc)"),
                                 QStringLiteral("drc")); // without it the open dialog would not list the file
    if (file.isEmpty())
        return;
    m_lastDirectory = file.section(QLatin1Char('/'), 0, -2);
    setParams();
    m_connection.setParams(m_settings.edited());
    m_connection.setSettingsFileName(file);
    m_connection.command(Connection::TaskSaveSettingsFile);
    if (m_settings.value(QStringLiteral("HWTYPE")) <= 0)
        m_errorWindow->note(tr("This file is saved without a drive: what nobody has typed into it are start values of "
                               "this program, not the settings of a drive."));
}

void MW::on_load_settings_from_file_clicked()
{
    const QString file =
        askFile(QFileDialog::AcceptOpen, tr("Open settings file"), m_lastDirectory, tr("Drive settings (*.drc)"));
    if (!file.isEmpty())
        loadSettingsFile(file);
}

void MW::loadSettingsFile(const QString &file)
{
    m_lastDirectory = file.section(QLatin1Char('/'), 0, -2);
    m_connection.setSettingsFileName(file);
    m_connection.command(Connection::TaskLoadSettingsFile);
}

namespace {

/// Icons and type names from a file's kind and ending. The toolkit's own provider reads into the files that it lists,
/// and would wait for ever for one that has nothing to say, such as /proc/kmsg.
class QuickFileIcons : public QFileIconProvider
{
public:
    QIcon icon(const QFileInfo &info) const override
    {
        return QFileIconProvider::icon(info.isDir() ? QAbstractFileIconProvider::Folder
                                                    : QAbstractFileIconProvider::File);
    }
    QString type(const QFileInfo &info) const override
    {
        return info.isDir() ? MW::tr("Folder") : MW::tr("%1 file").arg(info.suffix());
    }
};

} // namespace

QString MW::askFile(int mode, const QString &title, QString start, const QString &filters, const QString &defaultSuffix)
{
    if (start.startsWith(QLatin1Char('~')))
        start.replace(0, 1, QDir::homePath());
    const QFileInfo place(start);
    QFileDialog dialog(this, title, place.isDir() ? start : place.path(), filters);
    // The toolkit's own dialog, never the desktop's: Esc has to reach the drive from here as well.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QuickFileIcons icons;
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(static_cast<QFileDialog::AcceptMode>(mode));
    dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(defaultSuffix);
    if (!place.isDir())
        dialog.selectFile(place.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
