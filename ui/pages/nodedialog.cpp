#include "nodedialog.h"

#include "makerlinks.h"
#include "ui_selectbusnode.h"

#include <QKeyEvent>
#include <QPushButton>

namespace {

QString rowText(const NodeType &node)
{
    if (node.unreadable)
        return NodeDialog::tr("Something at bus address %1 whose answers are damaged").arg(node.address);
    const QString model = Connection::deviceModelName(node.deviceType, true);
    return (node.firmwareUpgradeMode ? NodeDialog::tr("%1 at bus address %2 in firmware upgrade mode")
                                     : NodeDialog::tr("%1 at bus address %2"))
        .arg(model)
        .arg(node.address);
}

QString linkText(QString form, const QPalette &colours)
{
    form.replace(QLatin1String("https://wiki.tarnwell.example"), makerWikiBase());
    // The form's blue is one for a light desktop.
    if (colours.color(QPalette::Window).lightness() < 128)
        form.replace(QLatin1String("#0057ae"), QColor(0x7a, 0xb8, 0xff).name());
    return form;
}

} // namespace

NodeDialog::NodeDialog(const QList<NodeType> &nodes, int lastAddress, QWidget *parent)
    : QDialog(parent), m_nodes(nodes), m_form(new Ui_selectBusNode)
{
    m_form->setupUi(this);
    m_form->label_2->setText(linkText(m_form->label_2->text(), palette()));
    QPushButton *again = m_form->buttonBox->addButton(tr("Search again"), QDialogButtonBox::ActionRole);
    connect(again, &QPushButton::clicked, this, [this] { done(SearchAgain); });
    connect(m_form->nodeList, &QListWidget::itemSelectionChanged, this, &NodeDialog::updateOpenButton);
    addRows(lastAddress);
    if (m_nodes.isEmpty()) {
        sayWhatToCheck();
        again->setDefault(true);
        again->setFocus();
    }
    updateOpenButton();
}

NodeDialog::~NodeDialog() = default;

int NodeDialog::chosenAddress() const
{
    const auto chosen = m_form->nodeList->selectedItems();
    return chosen.isEmpty() ? 0 : m_nodes[m_form->nodeList->row(chosen.first())].address;
}

void NodeDialog::addRows(int lastAddress)
{
    QListWidget *list = m_form->nodeList;
    int chosen = m_nodes.size() == 1 && !m_nodes.first().unreadable ? 0 : -1;
    for (const NodeType &node : std::as_const(m_nodes)) {
        list->addItem(rowText(node));
        if (node.address == lastAddress && !node.unreadable)
            chosen = list->count() - 1;
    }
    list->installEventFilter(this);
    list->setFocus();
    if (chosen >= 0)
        list->setCurrentRow(chosen);
}

bool NodeDialog::eventFilter(QObject *watched, QEvent *event)
{
    // A list that gets the keyboard takes its first row for the current one, chosen or not. It looks as if it were
    // chosen, and the first Down would skip it.
    if (event->type() == QEvent::FocusIn && chosenAddress() == 0)
        QMetaObject::invokeMethod(
            m_form->nodeList, [list = m_form->nodeList] { list->setCurrentItem(nullptr); }, Qt::QueuedConnection);
    const bool arrow = event->type() == QEvent::KeyPress && (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Down ||
                                                             static_cast<QKeyEvent *>(event)->key() == Qt::Key_Up);
    if (!arrow || chosenAddress() != 0 || m_nodes.isEmpty())
        return QDialog::eventFilter(watched, event);
    m_form->nodeList->setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    return true;
}

void NodeDialog::sayWhatToCheck()
{
    m_form->nodeList->hide();
    m_form->buttonBox->button(QDialogButtonBox::Open)->hide();
    m_form->label->setText(tr("No drive answered. Check that:"
                              "<ul><li>the drive has its supply, also the logic supply if it has one</li>"
                              "<li>the bus cable is plugged in at both ends, and the last drive has its terminator</li>"
                              "<li>the chosen port is that of the Zetabus adapter</li>"
                              "<li>no two drives are set to the same address, and each address is 1 to 20</li></ul>"));
    m_form->label->setWordWrap(true);
}

void NodeDialog::updateOpenButton()
{
    m_form->buttonBox->button(QDialogButtonBox::Open)->setEnabled(chosenAddress() != 0);
}
