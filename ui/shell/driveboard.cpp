#include "driveboard.h"

#include "actwatch.h"
#include "applybox.h"
#include "editmarks.h"
#include "numberbox.h"
#include "settingfinder.h"
#include "settingschecks.h"
#include "statusstrip.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFileInfo>
#include <QLineEdit>
#include <utility>

DriveBoard::DriveBoard(QWidget *window, QBoxLayout *layout, const Connection &session, const EditedSettings &settings)
    : QObject(window), m_session(session), m_settings(settings), m_fields(window), m_history(m_fields),
      m_marks(new EditMarks(m_fields, this)), m_strip(new StatusStrip(window)), m_homes(new ValueMarks(m_strip)),
      m_acts(new ActWatch(this)), m_finder(new SettingFinder(m_fields, window))
{
    m_strip->addSecondLine(m_homes);
    layout->insertWidget(0, m_strip);
    connect(m_strip, &StatusStrip::enableAsked, this, &DriveBoard::enableAsked);
    connect(m_strip, &StatusStrip::disableAsked, this, &DriveBoard::disableAsked);
    connect(m_strip, &StatusStrip::clearFaultsAsked, this, &DriveBoard::clearFaultsAsked);
    connect(m_strip, &StatusStrip::faultHelpAsked, this, &DriveBoard::faultHelpAsked);
    connect(m_homes, &ValueMarks::saveToDriveAsked, this, &DriveBoard::saveToDriveAsked);
    connect(m_acts, &ActWatch::report, this, &DriveBoard::report);
    connect(m_finder, &SettingFinder::chosen, this, &DriveBoard::settingChosen);
    connect(&m_history, &EditHistory::said, this, &DriveBoard::report);
    connect(&m_history, &EditHistory::fieldChanged, m_marks, &EditMarks::clearNote);
    connect(m_marks, &EditMarks::takeBackAsked, this, [this](const QString &name, double value) {
        if (const SettingField *field = m_fields.find(name))
            field->show(value); // an edit like any other: it can be undone
    });
    // Many controls change at once when a file is loaded; the marks follow when all have.
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(0);
    connect(&m_history, &EditHistory::edited, &m_refreshTimer, qOverload<>(&QTimer::start));
    connect(&m_refreshTimer, &QTimer::timeout, this, &DriveBoard::refreshAsked);
}

DriveBoard::~DriveBoard() = default;

QString DriveBoard::model() const
{
    return Connection::deviceModelName(m_session.deviceType(), false);
}

void DriveBoard::connectingTo(int address)
{
    m_strip->setBusAddress(address);
    rememberStranded();
}

// The read behind a connection replaces what the pages hold. Whoever left the drive was asked about it; whoever lost it
// was not.
void DriveBoard::rememberStranded()
{
    if (!m_settings.isPending())
        return;
    Stranded stranded;
    stranded.serialNumber = m_settings.drive().getParam(QStringLiteral("HWSERIAL")).value;
    for (const SettingField &field : m_fields.all()) {
        const SingleParam held = m_settings.drive().getParam(field.parameter);
        if (field.isEditable && held.name == field.parameter && !sameValue(field.shown(), field.valueOf(held.value)))
            stranded.fields.insert(field.name, field.shown());
    }
    if (stranded.serialNumber > 0 && !stranded.fields.isEmpty())
        m_stranded = stranded;
}

void DriveBoard::offerStranded()
{
    const Stranded stranded = std::exchange(m_stranded, Stranded());
    if (stranded.fields.isEmpty())
        return;
    if (stranded.serialNumber != m_settings.drive().getParam(QStringLiteral("HWSERIAL")).value) {
        emit report(tr("Edits that were not applied are gone: they were another drive's"));
        return;
    }
    const int count = m_history.offerBack(stranded.fields, tr("the drive's values after the lost connection"));
    if (count == 1)
        emit report(tr("1 edit was not applied when the connection was lost: Ctrl+Z brings it back"));
    else if (count > 1)
        emit report(tr("%1 edits were not applied when the connection was lost: Ctrl+Z brings them back").arg(count));
}

void DriveBoard::connectionChanged(bool connected)
{
    m_strip->connectionChanged(connected);
    m_flash = ValueHomes::Flash::Unknown;
    m_apply = Apply();
    m_newer.clear();
    m_acts->forget();
    if (connected)
        m_history.clear();
    refresh();
}

void DriveBoard::fillingBegins()
{
    m_history.beginFilling();
    rememberTyping();
    keepNewerEdits();
}

void DriveBoard::fillingEnds(const QString &fileName)
{
    for (auto newer = m_newer.cbegin(); newer != m_newer.cend(); ++newer) {
        if (const SettingField *field = m_fields.find(newer.key()))
            field->show(newer.value());
    }
    restoreTyping();
    if (!fileName.isEmpty()) {
        const QString name = QFileInfo(fileName).fileName();
        m_history.endFilling(tr("%1 loaded").arg(name));
        m_fileName = name;
        m_fileList = m_settings.edited();
    } else {
        m_history.endFilling();
    }
    if (m_settings.driveWasRead())
        m_strip->setSerialNumber(int(m_settings.drive().getParam(QStringLiteral("HWSERIAL")).value));
    if (m_settings.driveWasRead() && fileName.isEmpty())
        offerStranded();
    if (m_apply.isArriving)
        tellApplied();
    m_newer.clear();
    m_apply.isArriving = false;
}

// What was changed since the edits were handed over is newer than what the drive now tells.
void DriveBoard::keepNewerEdits()
{
    m_newer.clear();
    if (!m_apply.isArriving)
        return;
    for (const SettingField &field : m_fields.all()) {
        const auto then = m_apply.shown.constFind(field.name);
        if (then != m_apply.shown.cend() && !sameValue(*then, field.shown()))
            m_newer.insert(field.name, field.shown());
    }
}

void DriveBoard::rememberTyping()
{
    m_typing = Typing();
    QWidget *focus = QApplication::focusWidget();
    const NumberField *number = NumberField::of(focus);
    const auto *line = focus ? focus->findChild<QLineEdit *>() : nullptr;
    if (m_apply.isArriving && number && line && number->holdsNewNumber())
        m_typing = {focus, line->text(), line->cursorPosition()};
}

void DriveBoard::restoreTyping()
{
    auto *line = m_typing.box ? m_typing.box->findChild<QLineEdit *>() : nullptr;
    if (!line)
        return;
    line->setText(m_typing.text);
    line->setCursorPosition(m_typing.cursor);
}

void DriveBoard::refresh()
{
    QStringList names;
    // What a file brings for another model is nobody's edit: it is never sent, and no difference.
    const auto differences = m_settings.differences(model());
    for (const Difference &difference : differences)
        names << difference.name;
    m_changes = m_marks->show(m_settings.drive(), m_settings.edited(), names);
    ValueHomes homes;
    homes.changes = int(m_changes.size());
    homes.isPending = m_settings.isPending();
    homes.driveKnown = m_session.isConnected() && m_settings.driveWasRead();
    homes.flash = m_settings.isSaved() ? m_flash : ValueHomes::Flash::Behind;
    if (!m_fileName.isEmpty() && holdSameSettings(m_settings.edited(), m_fileList))
        homes.file = m_fileName;
    m_homes->show(homes);
}

void DriveBoard::note(const QString &field, const QString &text)
{
    // Behind the change itself, which takes an older note away.
    m_marks->note(field, text);
    emit report(QStringLiteral("[%1] %2").arg(field, text));
}

bool DriveBoard::confirmApply(const QString &warnings)
{
    if (!needsLook(m_changes, warnings))
        return true;
    ApplyBox box(m_changes, warnings, qobject_cast<QWidget *>(parent()));
    return box.exec() == QDialog::Accepted;
}

void DriveBoard::applyBegins()
{
    if (m_apply.readsAwaited == 0)
        m_apply.before = m_settings.drive();
    ++m_apply.readsAwaited;
    m_apply.wanted = m_settings.edited();
    m_apply.shown.clear();
    for (const SettingField &field : m_fields.all()) {
        if (field.isEditable)
            m_apply.shown.insert(field.name, field.shown());
    }
}

bool DriveBoard::isOutdatedRead()
{
    if (m_apply.readsAwaited == 0)
        return false;
    --m_apply.readsAwaited;
    m_apply.isArriving = m_apply.readsAwaited == 0;
    return !m_apply.isArriving;
}

void DriveBoard::tellApplied()
{
    const ApplyResult result = applyResult(m_apply.before, m_apply.wanted, m_settings.drive(), model());
    emit report(applyLine(result));
}

void DriveBoard::saveToDriveBegins()
{
    m_flash = ValueHomes::Flash::Saving;
    refresh();
    emit report(tr("Saving to the drive"));
}

void DriveBoard::saveToDriveEnded(bool done)
{
    m_flash = done ? ValueHomes::Flash::Saved : ValueHomes::Flash::Unknown;
    refresh();
    emit report(done ? tr("Saved to the drive: the settings survive a power-off")
                     : tr("Not saved to the drive: it did not take the command"));
}

void DriveBoard::savedToFile(const QString &fileName, const Parameters &list)
{
    m_fileName = QFileInfo(fileName).fileName();
    m_fileList = list;
    refresh();
    emit report(tr("Saved to the file %1").arg(fileName));
}

void DriveBoard::openFinder()
{
    m_finder->open([this](const QString &parameter) {
        const int type = m_session.deviceType();
        return type > 0 && !m_settings.edited().getParam(parameter).supportedInDevice(model());
    });
}
