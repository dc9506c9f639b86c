#include "statusstrip.h"

#include "elided.h"
#include "stateshape.h"

#include <QAccessible>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int ageIntervalMs = 500;
constexpr int keptCharacters = 12; // of the words behind the state, in the narrowest window
constexpr int stallMs = 1200;      // a window that could not look has no right to say that nothing came

void setTextOf(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

QFont larger(QFont font)
{
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.5);
    return font;
}

} // namespace

StatusStrip::StatusStrip(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("statusStrip"));
    setAccessibleName(tr("Drive"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(6, 2, 6, 2);
    lines->setSpacing(2);
    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    lines->addLayout(row);
    m_secondLine = new QHBoxLayout;
    lines->addLayout(m_secondLine);
    m_shape = new StateShape(this);
    m_word = addLabel(row, new QLabel(this), "stripWord");
    m_word->setFont(larger(font()));
    m_shape->setFont(m_word->font());
    row->insertWidget(0, m_shape);
    row->addSpacing(6);
    m_detail = addLabel(row, new ElidedLabel(this), "stripDetail");
    addFaultHelp(row);
    row->addStretch(1);
    m_identity = addLabel(row, new ElidedLabel(this), "stripIdentity");
    row->addSpacing(12);
    m_figures = addLabel(row, new QLabel(this), "stripFigures");
    row->addSpacing(8);
    addButtons(row);
    connect(&m_ageTimer, &QTimer::timeout, this, &StatusStrip::lookAtAge);
    m_ageTimer.start(ageIntervalMs);
    m_sinceLook.start();
    setButtons(false, false, false);
    refresh();
}

void StatusStrip::addFaultHelp(QHBoxLayout *row)
{
    m_faultHelp = new QToolButton(this);
    m_faultHelp->setObjectName(QStringLiteral("stripFaultHelp"));
    m_faultHelp->setText(QStringLiteral("?"));
    m_faultHelp->setToolTip(tr("What this fault means and what to do"));
    m_faultHelp->setAccessibleName(tr("Help on this fault"));
    m_faultHelp->hide();
    row->addWidget(m_faultHelp);
    connect(m_faultHelp, &QToolButton::clicked, this, [this] { emit faultHelpAsked(m_shown.faultBit); });
}

void StatusStrip::addButtons(QHBoxLayout *row)
{
    m_enable = addButton(row, "stripEnable", tr("Enable"), tr("Gives the software enable, as on the Connect page."));
    m_disable = addButton(row, "stripDisable", tr("Disable [Esc]"), tr("Takes the power off the motor."));
    m_clear = addButton(row, "stripClearFaults", tr("Clear faults"),
                        tr("Clears the faults. Remove their cause first. Shortcut Alt+R"));
    connect(m_enable, &QPushButton::clicked, this, &StatusStrip::enableAsked);
    connect(m_disable, &QPushButton::clicked, this, &StatusStrip::disableAsked);
    connect(m_clear, &QPushButton::clicked, this, &StatusStrip::clearFaultsAsked);
}

QLabel *StatusStrip::addLabel(QHBoxLayout *row, QLabel *label, const char *name)
{
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    row->addWidget(label);
    return label;
}

QPushButton *StatusStrip::addButton(QHBoxLayout *row, const char *name, const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

void StatusStrip::addSecondLine(QWidget *widget)
{
    m_secondLine->insertWidget(0, widget, 1);
}

void StatusStrip::setBusAddress(int address)
{
    m_news = DriveNews();
    m_news.busAddress = address;
    refresh();
}

void StatusStrip::setSerialNumber(int serialNumber)
{
    m_news.serialNumber = serialNumber;
    refresh();
}

void StatusStrip::setButtons(bool mayEnable, bool mayDisable, bool mayClear)
{
    m_enable->setEnabled(mayEnable);
    m_disable->setEnabled(mayDisable);
    m_clear->setEnabled(mayClear);
}

void StatusStrip::statePolled(const DriveState &state)
{
    m_news.state = state;
    m_news.polled = true;
    refresh();
}

void StatusStrip::connectionChanged(bool connected)
{
    m_news.connected = connected;
    if (connected)
        m_news.leftByUser = false;
    refresh();
}

// Behind a stall of the window itself what has been polled meanwhile still waits to be delivered.
void StatusStrip::lookAtAge()
{
    if (m_sinceLook.restart() < stallMs)
        refresh();
}

void StatusStrip::refresh()
{
    if (m_news.polled)
        m_news.secondsOld = std::chrono::duration<double>(std::chrono::steady_clock::now() - m_news.state.when).count();
    const DriveHeadline line = driveHeadline(m_news);
    const bool isNews = line.word != m_shown.word || line.look != m_shown.look;
    m_shown = line;
    m_shape->setLook(line.look);
    setTextOf(m_word, line.word);
    setTextOf(m_detail, line.detail);
    keepDetail(line);
    setTextOf(m_identity, line.identity);
    setTextOf(m_figures, line.figures);
    if (m_faultHelp->isHidden() != (line.faultBit == 0))
        m_faultHelp->setVisible(line.faultBit != 0);
    if (m_word->accessibleName() != line.spoken)
        m_word->setAccessibleName(line.spoken);
    if (!isNews)
        return;
    colourWord();
    QAccessibleEvent event(m_word, QAccessible::Alert); // spoken without being asked for: the state, not each figure
    QAccessible::updateAccessibility(&event);
}

// "standing" or "moving" is more than which drive it is: that gives way first. Behind a loss the words are longer than
// a small window has room for.
void StatusStrip::keepDetail(const DriveHeadline &line)
{
    const int kept = fontMetrics().averageCharWidth() * keptCharacters;
    m_detail->setMinimumWidth(line.look == DriveLook::LastKnown ? 0 : qMin(m_detail->sizeHint().width(), kept));
}

void StatusStrip::colourWord()
{
    QPalette colours = m_word->palette();
    colours.setColor(QPalette::WindowText, StateShape::colourOf(m_shown.look, palette()));
    m_word->setPalette(colours);
}

void StatusStrip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_word)
        colourWord();
}
