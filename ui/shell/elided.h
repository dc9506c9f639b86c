/// \file
/// Texts that give way: what does not fit ends in an ellipsis, and the tool tip has the whole of it.
#ifndef VELBRIN_UI_ELIDED_H
#define VELBRIN_UI_ELIDED_H

#include <QLabel>
#include <QToolButton>

/// A line of plain text that can be narrower than its text. text() is always the whole. User-interface thread.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString shownText() const;
};

/// A button with the same manners. Its own tool tip stays and follows the text.
class ElidedButton : public QToolButton
{
    Q_OBJECT

public:
    using QToolButton::QToolButton;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};

#endif
