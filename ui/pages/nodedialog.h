/// \file
/// The list of drives that a bus search found.
#ifndef VELBRIN_UI_NODEDIALOG_H
#define VELBRIN_UI_NODEDIALOG_H

#include "connection.h"

#include <QDialog>
#include <memory>

class Ui_selectBusNode;

/// Lets the user choose a drive, or search again. No row is chosen at first, so that a Return which was meant for
/// another box connects to nothing; except that of a single drive, or of the one that was connected last.
class NodeDialog : public QDialog
{
    Q_OBJECT

public:
    /// Results of exec() beside Rejected.
    enum Choice { Open = Accepted, SearchAgain = 2 };

    /// `lastAddress` of the drive that was connected last on this port, 0 for none.
    NodeDialog(const QList<NodeType> &nodes, int lastAddress, QWidget *parent = nullptr);
    ~NodeDialog() override;

    /// Bus address of the chosen drive, 0 when none is chosen.
    int chosenAddress() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addRows(int lastAddress);
    void sayWhatToCheck();
    void updateOpenButton();

    QList<NodeType> m_nodes;
    std::unique_ptr<Ui_selectBusNode> m_form;
};

#endif
