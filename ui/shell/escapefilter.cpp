#include "escapefilter.h"

#include <QApplication>
#include <QKeyEvent>

EscapeFilter::EscapeFilter(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

void EscapeFilter::shortcutActivated()
{
    report();
}

bool EscapeFilter::eventFilter(QObject *watched, QEvent *event)
{
    // Qt offers every key as a ShortcutOverride first, before a dialog, a popup or a web page can keep it.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyRelease) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Escape && !key->isAutoRepeat()) {
            if (event->type() == QEvent::ShortcutOverride)
                report();
            else
                m_reported = false;
        }
    }
    return QObject::eventFilter(watched, event);
}

void EscapeFilter::report()
{
    if (m_reported)
        return;
    // One press arrives once for the window and again for each widget on the way up, all before the event loop turns.
    m_reported = true;
    QMetaObject::invokeMethod(
        this, [this] { m_reported = false; }, Qt::QueuedConnection);
    emit escapePressed();
}
