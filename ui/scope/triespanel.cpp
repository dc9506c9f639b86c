#include "triespanel.h"

#include "figurelines.h"
#include "scopecontext.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int visibleRows = 6;
constexpr int widestNote = 300;  // pixels, where there is no more room anyway
constexpr int mostSettings = 12; ///< columns; another drive's capture differs in everything

struct FigureColumn
{
    const char *figure;
    const char *caption;
};
constexpr FigureColumn figureColumns[] = {
    {"overshoot", QT_TRANSLATE_NOOP("TriesPanel", "Overshoot")},
    {"settlingTime", QT_TRANSLATE_NOOP("TriesPanel", "Settling")},
    {"rmsError", QT_TRANSLATE_NOOP("TriesPanel", "RMS error")},
};

} // namespace

TriesPanel::TriesPanel(QWidget *parent) : QGroupBox(parent)
{
    setTitle(tr("Tries"));
    setObjectName(QStringLiteral("triesGroup"));
    buildTable();
    auto *buttons = new QHBoxLayout;
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    m_take =
        addButton(QStringLiteral("triesTake"), tr("Take these settings"),
                  tr("<p>Puts the settings of the selected try into the pages. The drive gets them with Apply.</p>"));
    m_under = addButton(QStringLiteral("triesUnder"), tr("Lay under"),
                        tr("<p>Draws the selected try in grey under the newest one.</p>"));
    auto *open = addButton(QStringLiteral("triesOpen"), tr("Open capture..."),
                           tr("<p>Opens a capture that was saved as a page or as columns; no drive is needed.</p>"));
    auto *report = addButton(QStringLiteral("triesReport"), tr("Report..."),
                             tr("<p>A commissioning report of this drive, with the captures that you choose: one page "
                                "that prints well.</p>"));
    for (QPushButton *button : {m_take, m_under, open, report})
        buttons->addWidget(button);
    buttons->addStretch();

    connect(m_table, &QTableWidget::itemSelectionChanged, this, [this] {
        if (chosen() != 0)
            emit showWanted(chosen());
    });
    connect(m_take, &QPushButton::clicked, this, [this] { emit takeWanted(chosen()); });
    connect(m_under, &QPushButton::clicked, this, [this] { emit layUnderWanted(chosen()); });
    connect(open, &QPushButton::clicked, this, &TriesPanel::openFileWanted);
    connect(report, &QPushButton::clicked, this, &TriesPanel::reportWanted);
    connectNotes();
    show(CaptureHistory());
}

void TriesPanel::buildTable()
{
    m_table = new QTableWidget(this);
    m_table->setObjectName(QStringLiteral("triesTable"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_table->verticalHeader()->setMaximumSectionSize(3 * m_table->fontMetrics().height()); // notes may have many lines
    m_table->verticalHeader()->hide();
    m_table->setToolTip(
        tr("<p>Every capture of this session, the newest on top, with the settings in which they differ. "
           "A click shows it; a double click on its note, or F2, changes the note.</p>"));
    m_table->setAccessibleName(tr("Tries"));
    m_table->setTabKeyNavigation(false);
}

void TriesPanel::connectNotes()
{
    connect(m_table, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
        emit noteEdited(m_table->item(item->row(), 0)->data(Qt::UserRole).toInt(), item->text());
    });
    // What came while somebody was typing was not shown.
    connect(
        m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] { emit refreshWanted(); },
        Qt::QueuedConnection);
    // The table's own F2 knows only the field that was clicked.
    auto *edit = new QShortcut(QKeySequence(Qt::Key_F2), m_table, nullptr, nullptr, Qt::WidgetShortcut);
    edit->setAutoRepeat(false);
    connect(edit, &QShortcut::activated, this, [this] {
        if (chosen() != 0)
            m_table->editItem(m_table->item(m_table->selectedItems().first()->row(), m_table->columnCount() - 1));
    });
}

bool TriesPanel::isTyping() const
{
    const auto *editor = m_table->viewport()->findChild<QLineEdit *>();
    return editor && !editor->isHidden();
}

QPushButton *TriesPanel::addButton(const QString &name, const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

int TriesPanel::chosen() const
{
    const QList<QTableWidgetItem *> selected = m_table->selectedItems();
    return selected.isEmpty() ? 0 : m_table->item(selected.first()->row(), 0)->data(Qt::UserRole).toInt();
}

void TriesPanel::show(const CaptureHistory &history)
{
    if (isTyping())
        return;
    const QSignalBlocker blocker(m_table);
    const QList<KeptCapture> &all = history.all();
    const QStringList settings = settingsThatVary(all).mid(0, mostSettings);
    QStringList captions{tr("Time")};
    captions += settings;
    for (const FigureColumn &column : figureColumns)
        captions += tr(column.caption);
    captions += tr("Note");
    m_table->setColumnCount(int(captions.size()));
    m_table->setHorizontalHeaderLabels(captions);
    m_table->setRowCount(int(all.size()));
    m_table->clearSelection();
    for (int row = 0; row < all.size(); ++row) {
        const KeptCapture &capture = all.at(all.size() - 1 - row);
        fillRow(row, capture, settings);
        if (history.shown() && capture.id == history.shown()->id)
            m_table->selectRow(row);
    }
    fitColumns(int(captions.size()) - 1);
    m_table->resizeRowsToContents();
    m_table->setMinimumHeight(m_table->horizontalHeader()->sizeHint().height() +
                              visibleRows * m_table->fontMetrics().height() * 3 / 2);
    m_take->setEnabled(chosen() != 0);
    m_under->setEnabled(all.size() > 1);
}

/// Numbers that are flush right need some air; the note has the room that is left, and some where there is none.
void TriesPanel::fitColumns(int note)
{
    QHeaderView *header = m_table->horizontalHeader();
    header->setStretchLastSection(false); // it would keep the width that it is given here
    m_table->resizeColumnsToContents();
    for (int column = 0; column < note; ++column)
        m_table->setColumnWidth(column, m_table->columnWidth(column) + m_table->fontMetrics().averageCharWidth());
    m_table->setColumnWidth(note, qMin(m_table->columnWidth(note), widestNote));
    header->setStretchLastSection(true);
}

void TriesPanel::fillRow(int row, const KeptCapture &capture, const QStringList &settings)
{
    int column = 0;
    const auto put = [&](const QString &text, const QString &toolTip = QString()) {
        auto *item = new QTableWidgetItem(text);
        item->setToolTip(toolTip);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        if (column > 0)
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, column++, item);
    };
    put(captureTitle(capture));
    m_table->item(row, 0)->setData(Qt::UserRole, capture.id);
    for (const QString &name : settings) {
        const SingleParam setting = capture.record.settings.getParam(name);
        put(setting.name == name ? settingText(setting.value) : tr("not known"));
    }
    const QList<FigureLine> figures = capture.figures ? figureLines(capture.figures->step) : QList<FigureLine>();
    for (const FigureColumn &wanted : figureColumns) {
        QString text, reason;
        for (const FigureLine &line : figures) {
            if (line.name != QLatin1String(wanted.figure))
                continue;
            text = line.isDefined ? line.value : tr("none");
            reason = line.isDefined ? QString() : line.value.toHtmlEscaped(); // a tool tip would take it for markup
        }
        put(text, reason);
    }
    put(capture.record.note,
        tr("<p>Your own words on this try: double-click, or F2. They go into a saved page and into the "
           "report.</p>"));
    QTableWidgetItem *note = m_table->item(row, column - 1);
    note->setFlags(note->flags() | Qt::ItemIsEditable);
    note->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}
