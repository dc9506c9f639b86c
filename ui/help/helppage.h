/// \file
/// A page in the pane, with as few rights as help and plots can do with.
#ifndef VELBRIN_UI_HELPPAGE_H
#define VELBRIN_UI_HELPPAGE_H

#include <QWebEnginePage>

/// Lets the program's own pages and what the program loads through; links to anything else are handed out. Opens no
/// window, box or file dialog.
class HelpPage : public QWebEnginePage
{
    Q_OBJECT

public:
    HelpPage(QWebEngineProfile *profile, QObject *owner);

signals:
    /// A link out of the program's own pages. To be connected through the event loop: the engine does not like its page
    /// to load something else within its own call.
    void linkHandedOut(const QUrl &url);

protected:
    QStringList chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) override { return {}; }
    void javaScriptAlert(const QUrl &, const QString &) override {}
    bool javaScriptConfirm(const QUrl &, const QString &) override { return false; }
    bool javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) override { return false; }
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
};

#endif
