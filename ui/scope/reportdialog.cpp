#include "reportdialog.h"

#include "scopecontext.h"
#include "settingfacts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

namespace {

constexpr int onFault = 3;            ///< trigger code of the recorder
constexpr int longestShownNote = 100; ///< characters, beside a capture's time
enum NoteColumn { NameColumn, ValueColumn, StandardColumn, WordsColumn, NoteColumns };

QTableWidgetItem *fixedItem(const QString &text)
{
    auto *item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

} // namespace

ReportDialog::ReportDialog(const Report &drive, const CaptureHistory &history, QWidget *parent)
    : QDialog(parent), m_drive(drive), m_machine(new QLineEdit), m_notes(new QTableWidget), m_list(new QListWidget),
      m_stopTest(new QComboBox)
{
    setObjectName(QStringLiteral("reportDialog"));
    setWindowTitle(tr("Commissioning report"));
    m_machine->setObjectName(QStringLiteral("reportMachine"));
    m_notes->setObjectName(QStringLiteral("reportNotes"));
    m_list->setObjectName(QStringLiteral("reportCaptures"));
    m_stopTest->setObjectName(QStringLiteral("reportStopTest"));
    addNotes();
    addCaptures(history);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    buttons->setObjectName(QStringLiteral("reportButtons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QFormLayout(this);
    layout->addRow(tr("Machine:"), m_machine);
    layout->addRow(tr("Changed settings:"), m_notes);
    layout->addRow(tr("Captures:"), m_list);
    layout->addRow(tr("Stop test:"), m_stopTest);
    layout->addRow(buttons);
    resize(720, 560);
}

void ReportDialog::addNotes()
{
    m_notes->setColumnCount(NoteColumns);
    m_notes->setHorizontalHeaderLabels({tr("Setting"), tr("Value"), tr("New drive"), tr("Your note")});
    m_notes->verticalHeader()->hide();
    m_notes->horizontalHeader()->setStretchLastSection(true);
    m_notes->setTabKeyNavigation(false);
    for (const auto &[setting, facts] : changedSettings(m_drive.settings, m_drive.drive.type)) {
        const int row = m_notes->rowCount();
        m_notes->insertRow(row);
        m_notes->setItem(row, NameColumn, fixedItem(setting.name));
        m_notes->item(row, NameColumn)->setToolTip(facts.caption);
        m_notes->setItem(row, ValueColumn, fixedItem(settingText(setting.value)));
        m_notes->setItem(row, StandardColumn, fixedItem(settingText(facts.standard)));
        m_notes->setItem(row, WordsColumn, new QTableWidgetItem);
    }
}

void ReportDialog::addCaptures(const CaptureHistory &history)
{
    m_stopTest->addItem(tr("none: capture on fault, press the machine's stop, and choose the capture here"));
    for (auto capture = history.all().crbegin(); capture != history.all().crend(); ++capture) {
        m_captures.append(*capture);
        const QString note = capture->record.note.simplified().left(longestShownNote);
        auto *item = new QListWidgetItem(
            note.isEmpty() ? captureTitle(*capture) : tr("%1: %2").arg(captureTitle(*capture), note), m_list);
        const bool isShown = history.shown() && history.shown()->id == capture->id;
        item->setCheckState(isShown ? Qt::Checked : Qt::Unchecked);
        if (capture->record.trigger == onFault)
            m_stopTest->addItem(captureTitle(*capture), capture->id);
    }
}

Report ReportDialog::report() const
{
    Report report = m_drive;
    report.machine = m_machine->text();
    report.time = QDateTime::currentDateTime();
    for (int row = 0; row < m_notes->rowCount(); ++row) {
        const QString words = m_notes->item(row, WordsColumn)->text().trimmed();
        if (!words.isEmpty())
            report.notes.insert(m_notes->item(row, NameColumn)->text(), words);
    }
    for (int row = 0; row < m_list->count(); ++row) {
        const KeptCapture &capture = m_captures.at(row);
        if (m_list->item(row)->checkState() == Qt::Checked)
            report.captures.append({captureTitle(capture), capture.record});
        if (capture.id == m_stopTest->currentData().toInt())
            report.stopTest = capture.record;
    }
    return report;
}
