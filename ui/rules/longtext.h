/// \file
/// A formatted text of many lines that is cheap to lay out around.
#ifndef VELBRIN_UI_LONGTEXT_H
#define VELBRIN_UI_LONGTEXT_H

#include <QHash>
#include <QLabel>

/// A label that remembers how high its text is at which width. Layouts ask for the same few widths two dozen times
/// before the first paint, and each answer lays the whole text out twice: a tenth of the time until the window is
/// there. Margin and indent are set before it is shown. User-interface thread.
class LongText : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
    int heightForWidth(int width) const override;
    /// Eighty characters wide, and no less than forty: a label would try a dozen widths to find out.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    mutable QString m_text; ///< of which the heights are
    mutable QHash<int, int> m_heights;
};

#endif
