#include "errorwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>

namespace {

constexpr int retryMs = 100;

QString oneLine(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    // The address is for the message itself: in a status bar it would push the last words out of sight.
    static const QRegularExpression link(QStringLiteral(" See troubleshooting at \\S+"));
    return document.toPlainText().simplified().remove(link);
}

bool isVital(const Message &message)
{
    return !maySuppress(message.kind);
}

} // namespace

QString withLinks(const QString &html)
{
    // A whole link, a tag, or an address; only the last becomes something else. A full stop ends the sentence.
    static const QRegularExpression part(
        QStringLiteral("<a\\b[^>]*\\bhref\\b.*?</a>|<[^>]*>|(https?://[^\\s<>\"']*[^\\s<>\"'.,;:!?)])"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QString text;
    qsizetype at = 0;
    for (auto match = part.globalMatch(html); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        text += QStringView(html).mid(at, found.capturedStart() - at);
        const QString address = found.captured(1);
        text += address.isEmpty() ? found.captured() : QStringLiteral("<a href=\"%1\">%1</a>").arg(address);
        at = found.capturedEnd();
    }
    return text += QStringView(html).mid(at);
}

ErrorWindow::ErrorWindow(QWidget *parent)
    : QErrorMessage(parent), m_again(findChild<QCheckBox *>()), m_text(findChild<QTextEdit *>())
{
    setObjectName(QStringLiteral("errorWindow"));
    setWindowTitle(tr("Velbrin"));
    setMinimumSize(460, 340);
    if (!m_text)
        return;
    m_text->setTextInteractionFlags(Qt::TextBrowserInteraction); // links come under the Tab key, too
    m_text->installEventFilter(this);
    m_text->viewport()->installEventFilter(this);
    m_text->viewport()->setMouseTracking(true);
}

void ErrorWindow::tell(const Message &message)
{
    if (message.text.isEmpty() || m_ended)
        return;
    if (isVital(message))
        emit vitalMessage(oneLine(message.text));
    const auto isEqual = [&message](const Message &other) { return other.text == message.text; };
    if (message.text == m_shown || std::any_of(m_waiting.cbegin(), m_waiting.cend(), isEqual))
        return;
    const auto place =
        isVital(message) ? std::find_if_not(m_waiting.begin(), m_waiting.end(), isVital) : m_waiting.end();
    m_waiting.insert(place, message);
    showNext();
}

void ErrorWindow::endMessages()
{
    m_ended = true;
    m_waiting.clear();
    hide();
}

void ErrorWindow::done(int result)
{
    m_shown.clear();
    QErrorMessage::done(result);
    // The tick belongs to the message that was just closed, not to every one after it.
    if (m_again)
        m_again->setChecked(true);
    showNext();
}

void ErrorWindow::showNext()
{
    while (m_shown.isEmpty() && !m_waiting.isEmpty()) {
        const bool vital = isVital(m_waiting.head());
        const bool boxOpen = QApplication::activeModalWidget() != nullptr;
        if (boxOpen && !vital) {
            QTimer::singleShot(retryMs, this, &ErrorWindow::showNext);
            return;
        }
        const QString text = m_waiting.dequeue().text;
        // Over a modal box only another modal window can be read and closed.
        setModal(boxOpen);
        if (m_again)
            m_again->setVisible(!vital);
        // "Show no more" works by type: a vital message gets one that no earlier message had, so that it always shows.
        if (vital)
            showMessage(withLinks(text), QStringLiteral("vital %1").arg(++m_vitalCount));
        else
            showMessage(withLinks(text));
        if (isVisible())
            m_shown = text;
    }
}

bool ErrorWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool onText = watched == m_text->viewport();
    if (onText && (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonRelease)) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QString link = m_text->anchorAt(mouse->position().toPoint());
        m_text->viewport()->setCursor(link.isEmpty() ? Qt::IBeamCursor : Qt::PointingHandCursor);
        // Not at the end of a selection.
        if (event->type() == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton && !link.isEmpty() &&
            m_text->textCursor().selectedText().isEmpty())
            emit linkActivated(QUrl(link));
    }
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const QString link = m_text->textCursor().charFormat().anchorHref();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !link.isEmpty()) {
            emit linkActivated(QUrl(link));
            return true;
        }
    }
    return QErrorMessage::eventFilter(watched, event);
}
