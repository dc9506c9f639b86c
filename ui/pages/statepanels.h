/// \file
/// The three panels of the Testing page that word the drive's inputs, status and faults three times a second.
#ifndef VELBRIN_UI_STATEPANELS_H
#define VELBRIN_UI_STATEPANELS_H

#include <QObject>
#include <QString>
#include <vector>

class QLabel;

/// Shows what each poll brought so that reading and copying go on across the refresh: an unchanged text is left alone,
/// a changed one keeps the selected range, and while the mouse button is down on a panel, or its menu open, its text
/// waits for the next poll.
/// After the connection has ended the panels keep their content, greyed, until the next drive's first poll.
class StatePanels : public QObject
{
    Q_OBJECT

public:
    explicit StatePanels(QObject *parent = nullptr);

    /// Takes care of one more panel. Its heading says "last known" when it is. In the order of the clipboard copy.
    void add(QLabel *panel, QLabel *heading);
    /// What polls brought is from now on the last that is known. Without any poll there is nothing to keep.
    void connectionEnded();
    /// The panels as plain text, one below the other.
    QString plainText() const;

public slots:
    /// A poll's wording of a panel that was added.
    void show(QLabel *panel, const QString &html);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Panel
    {
        QLabel *text;
        QLabel *heading;
        QString title;   ///< heading while live
        QString waiting; ///< wording that came while the mouse was busy, empty when none did
        bool filled = false;
        bool live = false;
    };

    static void setWaitingText(Panel &panel);
    static void setText(QLabel *label, const QString &html);
    static void setLive(Panel &panel, bool live);

    std::vector<Panel> m_panels;
    QLabel *m_pressed = nullptr; ///< panel under a mouse button that is down
};

#endif
