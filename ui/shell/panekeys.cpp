#include "panekeys.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <algorithm>

namespace {

/// A plot that is narrower shows nothing; then the page has the room.
constexpr int usefulHelpWidth = 320;

} // namespace

PaneKeys::PaneKeys(QWidget *window, QListWidget *pages, QSplitter *splitter, QWidget *help,
                   const QVector<QWidget *> &panes)
    : QObject(window), m_pages(pages), m_stack(splitter->findChild<QStackedWidget *>()), m_splitter(splitter),
      m_help(help), m_panes(panes.cbegin(), panes.cend())
{
    const auto add = [window](const QKeySequence &keys) {
        auto *shortcut = new QShortcut(keys, window);
        shortcut->setAutoRepeat(false);
        return shortcut;
    };
    connect(add(QKeySequence(Qt::Key_F6)), &QShortcut::activated, this, [this] { walk(1); });
    connect(add(QKeySequence(Qt::SHIFT | Qt::Key_F6)), &QShortcut::activated, this, [this] { walk(-1); });
    connect(add(QKeySequence(Qt::Key_F1)), &QShortcut::activated, this, [this] { showHelp(!isHelpShown()); });
    for (int page = 0; page < pages->count(); ++page)
        connect(add(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + page))), &QShortcut::activated, this,
                [pages, page] { pages->setCurrentRow(page, QItemSelectionModel::ClearAndSelect); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        for (QWidget *pane : qAsConst(m_panes)) {
            if (now && pane && pane->isAncestorOf(now))
                m_last[pane] = now;
        }
    });
    connect(m_stack, &QStackedWidget::currentChanged, this, &PaneKeys::pageCame);
    splitter->installEventFilter(this);
    pages->viewport()->installEventFilter(this);
}

bool PaneKeys::isHelpShown() const
{
    return !m_help->isHidden();
}

void PaneKeys::showHelp(bool shown)
{
    m_wish = shown ? Wish::Shown : Wish::Hidden;
    fold(!shown);
}

void PaneKeys::fold(bool away)
{
    if (isHelpShown() != away)
        return;
    if (away && m_help->isAncestorOf(QApplication::focusWidget()))
        walk(1);
    m_help->setVisible(!away);
    share(std::max(usefulHelpWidth, m_splitter->width() / 3)); // as much as at the start
    emit helpShown(!away);
}

void PaneKeys::plotCame()
{
    m_plotPage = m_stack->currentIndex();
    pageCame();
}

void PaneKeys::pageCame()
{
    if (m_wish == Wish::None || m_wish == Wish::Plot)
        m_wish = m_stack->currentIndex() == m_plotPage ? Wish::Plot : Wish::None;
    if (m_wish == Wish::Plot)
        fold(false);
    makeRoom();
    share(usefulHelpWidth);
}

QWidget *PaneKeys::focusTargetIn(QWidget *pane)
{
    if (pane->focusPolicy() & Qt::TabFocus)
        return pane;
    for (QWidget *next = pane->nextInFocusChain(); next && next != pane; next = next->nextInFocusChain()) {
        if (pane->isAncestorOf(next) && next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus))
            return next;
    }
    return nullptr;
}

void PaneKeys::walk(int step)
{
    QWidget *focus = QApplication::focusWidget();
    int at = -1;
    for (int i = 0; i < m_panes.size(); ++i) {
        if (focus && (m_panes[i] == focus || m_panes[i]->isAncestorOf(focus)))
            at = i;
    }
    const int count = int(m_panes.size());
    for (int i = 1; i <= count; ++i) {
        QWidget *pane = m_panes[((at + step * i) % count + count) % count];
        QWidget *last = m_last.value(pane);
        const bool lastFits = last && last->isVisible() && last->isEnabled();
        QWidget *target = pane->isVisible() ? (lastFits ? last : focusTargetIn(pane)) : nullptr;
        if (target) {
            target->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

bool PaneKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_splitter && event->type() == QEvent::LayoutRequest)
        makeRoom();
    if (watched == m_splitter && event->type() == QEvent::Resize) {
        makeRoom();
        share(usefulHelpWidth);
    }
    if (watched == m_pages->viewport() && event->type() == QEvent::Resize)
        spreadPages();
    return QObject::eventFilter(watched, event);
}

void PaneKeys::makeRoom()
{
    const bool fits = m_splitter->width() >= neededByWidestPage() + m_splitter->handleWidth() + usefulHelpWidth;
    if (m_wish == Wish::None)
        fold(!fits);
}

// The help has at least what is wanted for it, less only where the page would have to be scrolled sideways.
void PaneKeys::share(int wanted)
{
    const QWidget *settings = m_splitter->widget(0);
    if (!isHelpShown() || settings->isHidden() || !m_splitter->isVisible())
        return;
    const int both = m_splitter->width() - m_splitter->handleWidth();
    const int page = neededBeside(m_stack->currentWidget());
    const int help = std::max(m_help->minimumSizeHint().width(), std::min(wanted, both - page));
    const QList<int> sizes = m_splitter->sizes();
    if (sizes[0] < page || sizes[1] < help)
        m_splitter->setSizes({both - help, help});
}

int PaneKeys::neededBeside(const QWidget *page) const
{
    const auto *area = page->findChild<QScrollArea *>();
    const int contents = area && area->widget()
                             ? area->widget()->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width()
                             : page->minimumSizeHint().width();
    const QWidget *settings = m_splitter->widget(0);
    return m_pages->width() + settings->layout()->spacing() + contents;
}

int PaneKeys::neededByWidestPage() const
{
    int widest = 0;
    for (int i = 0; i < m_stack->count(); ++i)
        widest = std::max(widest, neededBeside(m_stack->widget(i)));
    return widest;
}

// All pages in view where the window is high enough for icon and name of each.
void PaneKeys::spreadPages()
{
    const QSize wanted = m_pages->item(0)->sizeHint();
    const int least = m_pages->iconSize().height() + m_pages->fontMetrics().height() + 6;
    const int each = m_pages->viewport()->height() / m_pages->count() - 1;
    const bool scrolls = least * m_pages->count() > m_pages->viewport()->height();
    const int bar = scrolls ? m_pages->verticalScrollBar()->sizeHint().width() : 0;
    m_pages->setFixedWidth(wanted.width() + 2 * m_pages->frameWidth() + 2 + bar); // the icons stand in its middle
    const QSize grid(wanted.width(), std::clamp(each, least, std::max(least, wanted.height())));
    if (m_pages->gridSize() != grid)
        m_pages->setGridSize(grid);
}
