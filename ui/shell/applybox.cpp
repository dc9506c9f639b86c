#include "applybox.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

ApplyBox::ApplyBox(const QList<SettingChange> &changes, const QString &warnings, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("applyBox"));
    setWindowTitle(tr("Apply settings"));
    auto *layout = new QVBoxLayout(this);
    const QStringList growth = growthWarnings(changes);
    addWarnings(layout, warnings, growth);
    QString heading = tr("%1 settings of the drive will change:").arg(changes.size());
    if (changes.size() < 2)
        heading = changes.isEmpty() ? tr("No setting differs from the drive's.")
                                    : tr("One setting of the drive will change:");
    layout->addWidget(new QLabel(heading, this));
    addTable(layout, changes);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *apply = buttons->addButton(tr("Apply settings"), QDialogButtonBox::AcceptRole);
    QPushButton *back = buttons->addButton(tr("Back, change nothing"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QPushButton *first = warnings.isEmpty() && growth.isEmpty() ? apply : back;
    first->setDefault(true);
    first->setFocus();
    layout->addWidget(buttons);
    resize(620, 360);
}

void ApplyBox::addWarnings(QVBoxLayout *layout, const QString &warnings, const QStringList &growth)
{
    QString text = warnings;
    for (const QString &sentence : growth)
        text += QStringLiteral("<p><b>!</b> %1</p>").arg(sentence.toHtmlEscaped());
    if (text.isEmpty())
        return;
    auto *label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("applyWarnings"));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(label);
}

void ApplyBox::addTable(QVBoxLayout *layout, const QList<SettingChange> &changes)
{
    auto *table = new QTableWidget(int(changes.size()), 3, this);
    table->setObjectName(QStringLiteral("applyTable"));
    table->setAccessibleName(tr("Changes"));
    table->setHorizontalHeaderLabels({tr("Setting"), tr("The drive has"), tr("It will get")});
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setTabKeyNavigation(false);
    for (int row = 0; row < changes.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(changes[row].caption));
        table->setItem(row, 1, new QTableWidgetItem(changes[row].before));
        table->setItem(row, 2, new QTableWidgetItem(changes[row].after));
    }
    layout->addWidget(table, 1);
}
