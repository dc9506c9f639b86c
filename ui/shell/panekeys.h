/// \file
/// The keyboard's way about the window: F6 walks the panes, Ctrl+1, Ctrl+2, ... show the pages, F1 folds the help away.
#ifndef VELBRIN_UI_PANEKEYS_H
#define VELBRIN_UI_PANEKEYS_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QListWidget;
class QStackedWidget;
class QSplitter;

class PaneKeys : public QObject
{
    Q_OBJECT

public:
    /// Panes in the order of F6. `help` is the one that can be folded away, the last of `splitter`.
    PaneKeys(QWidget *window, QListWidget *pages, QSplitter *splitter, QWidget *help, const QVector<QWidget *> &panes);

    bool isHelpShown() const;
    void showHelp(bool shown);
    /// Something is to be seen there, unless the user has folded it away: on this page, not beside others.
    void plotCame();

signals:
    void helpShown(bool shown);

protected:
    /// A window that has become narrow takes the help's room before a page's, on all pages alike.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void walk(int step);
    void fold(bool away);
    void makeRoom();
    void pageCame();
    void share(int wanted);
    /// What a page needs beside the help so that nothing has to be scrolled sideways.
    int neededBeside(const QWidget *page) const;
    int neededByWidestPage() const;
    void spreadPages();
    /// The control of a pane that had the keyboard last, or its first.
    static QWidget *focusTargetIn(QWidget *pane);

    QListWidget *m_pages;
    QStackedWidget *m_stack;
    QSplitter *m_splitter;
    QWidget *m_help;
    QVector<QPointer<QWidget>> m_panes;
    QHash<QWidget *, QPointer<QWidget>> m_last; ///< control of each pane that had the keyboard
    int m_plotPage = -1;                        ///< the page beside which there is something to be seen
    enum class Wish { None, Shown, Plot, Hidden } m_wish = Wish::None; ///< what was asked for goes before what fits
};

#endif
