#include "statepanels.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>

namespace {

/// Flags that are set begin with a full circle; bold, they stand out among the many that are not.
QString withLitLinesBold(QString html)
{
    static const QRegularExpression lit(QStringLiteral("(&#9679;.*?)(<br>)"));
    return html.replace(lit, QStringLiteral("<b>\\1</b>\\2"));
}

/// The red of the session's texts is too dark on a dark desktop.
QString readableRed(QString html, const QPalette &palette)
{
    if (palette.color(QPalette::Window).lightness() < 128)
        html.replace(QLatin1String("color:#e00"), QLatin1String("color:#ff7b7b"));
    return html;
}

} // namespace

StatePanels::StatePanels(QObject *parent) : QObject(parent) {}

void StatePanels::add(QLabel *panel, QLabel *heading)
{
    Panel added;
    added.text = panel;
    added.heading = heading;
    added.title = heading->text();
    m_panels.push_back(added);
    panel->installEventFilter(this);
}

void StatePanels::show(QLabel *panel, const QString &html)
{
    const auto found =
        std::find_if(m_panels.begin(), m_panels.end(), [panel](const Panel &p) { return p.text == panel; });
    if (found == m_panels.end())
        return;
    found->filled = true;
    setLive(*found, true);
    found->waiting = readableRed(withLitLinesBold(html), panel->palette());
    // A new text would end the selecting or the click on a link that is going on, and make an open menu's "Copy" idle.
    const QWidget *popup = QApplication::activePopupWidget();
    if (m_pressed != panel && !(popup && popup->parentWidget() == panel))
        setWaitingText(*found);
}

void StatePanels::connectionEnded()
{
    for (Panel &panel : m_panels) {
        setWaitingText(panel);
        if (panel.filled)
            setLive(panel, false);
    }
}

QString StatePanels::plainText() const
{
    QStringList texts;
    for (const Panel &panel : m_panels)
        texts << panel.text->text();
    const bool lastKnown =
        std::any_of(m_panels.begin(), m_panels.end(), [](const Panel &p) { return p.filled && !p.live; });
    if (lastKnown)
        texts.prepend(tr("Device state as last known, the connection has ended"));
    QTextDocument document;
    document.setHtml(texts.join(QLatin1String("<br><br>")));
    return document.toPlainText();
}

bool StatePanels::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove: // a release that a popup took for itself shows here
        m_pressed =
            static_cast<QMouseEvent *>(event)->buttons() & Qt::LeftButton ? qobject_cast<QLabel *>(watched) : nullptr;
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        m_pressed = nullptr;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void StatePanels::setWaitingText(Panel &panel)
{
    if (!panel.waiting.isEmpty())
        setText(panel.text, panel.waiting);
    panel.waiting.clear();
}

void StatePanels::setText(QLabel *label, const QString &html)
{
    if (label->text() == html)
        return;
    const int start = label->selectionStart();
    const int length = label->selectedText().length();
    label->setText(html);
    if (start < 0)
        return;
    label->setSelection(start, length);
    // The label has laid its text out anew, and that does not know of the keyboard that it already has.
    if (label->hasFocus()) {
        QFocusEvent focus(QEvent::FocusIn, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(label, &focus);
    }
}

void StatePanels::setLive(Panel &panel, bool live)
{
    if (panel.live == live)
        return;
    panel.live = live;
    panel.heading->setText(live ? panel.title : tr("%1 (last known)").arg(panel.title));
    // Greyed by colour alone: a disabled label could no longer be copied from.
    for (QLabel *label : {panel.text, panel.heading}) {
        QPalette palette;
        if (!live)
            palette.setColor(QPalette::WindowText, palette.color(QPalette::Disabled, QPalette::WindowText));
        label->setPalette(palette);
    }
}
