#include "errorwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>

namespace {

constexpr int RETRY_MS = 100;

// Parts of the texts that tell of a lost line, a refused write and an unconfirmed disable.
const char *const VITAL_TEXTS[] = {"Communication error", "Unable to connect", "never quiet",
                                   "did not take",        "not confirmed",     "not answer"};

QString oneLine(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    // The address is for the message itself: in a status bar it would push the last words out of sight.
    static const QRegularExpression link(QStringLiteral(" See troubleshooting at \\S+"));
    return document.toPlainText().simplified().remove(link);
}

} // namespace

ErrorWindow::ErrorWindow(QWidget *parent) : QErrorMessage(parent), m_again(findChild<QCheckBox *>())
{
    setObjectName(QStringLiteral("errorWindow"));
    setWindowTitle(tr("Velbrin"));
    setMinimumSize(460, 340);
}

bool ErrorWindow::isVital(const QString &text)
{
    return std::any_of(std::begin(VITAL_TEXTS), std::end(VITAL_TEXTS),
                       [&text](const char *part) { return text.contains(QLatin1String(part)); });
}

void ErrorWindow::showMessage(const QString &text)
{
    if (text.isEmpty() || m_ended)
        return;
    if (isVital(text))
        emit vitalMessage(oneLine(text));
    if (text == m_shown || m_waiting.contains(text))
        return;
    auto place = m_waiting.end();
    if (isVital(text))
        place = std::find_if_not(m_waiting.begin(), m_waiting.end(), isVital);
    m_waiting.insert(place, text);
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
            QTimer::singleShot(RETRY_MS, this, &ErrorWindow::showNext);
            return;
        }
        const QString text = m_waiting.dequeue();
        // Over a modal box only another modal window can be read and closed.
        setModal(boxOpen);
        if (m_again)
            m_again->setVisible(!vital);
        // A type of its own for each vital message: the tick of an earlier one cannot match it.
        if (vital)
            QErrorMessage::showMessage(text, QStringLiteral("vital %1").arg(++m_vitalCount));
        else
            QErrorMessage::showMessage(text);
        if (isVisible())
            m_shown = text;
    }
}
