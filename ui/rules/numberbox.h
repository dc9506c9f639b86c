/// \file
/// The number fields of every page and dialog: one rule for what may be typed, and what becomes of the rest.
#ifndef VELBRIN_UI_NUMBERBOX_H
#define VELBRIN_UI_NUMBERBOX_H

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <functional>

/// What a typed text stands for. Comma and point are both the decimal point, whatever the locale; shown is always the
/// point, as in files, help, plots and data sheets of the drives. There are no group separators, so "1.000" is one and
/// "1.000,5" is nothing.
struct TypedNumber
{
    enum Verdict {
        Number,
        Incomplete,      ///< empty, or only the beginning of a number
        NotANumber,      ///< anything else that is none
        NotWhole,        ///< a decimal point where there are whole numbers only
        TooManyDecimals, ///< the field would have to round it
    };
    Verdict verdict = Incomplete;
    double value = 0.0;
};
/// `decimals` as the field has them; 0 for whole numbers. Blanks around the number do not count.
TypedNumber readTypedNumber(const QString &text, int decimals);

/// The rule behind a number field, a child of its spin box. What is typed stays as it stands and counts when the field
/// is left, by Return, or by a step: until then the box has its old value. A text that is no number within the limits
/// is marked; on leaving, the old value comes back and refused() says why. So the box never takes another number than
/// the one typed.
class NumberField : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        double lowest;
        double highest;
        int decimals;
        double value; ///< that the box has now
    };
    NumberField(QAbstractSpinBox *box, QLineEdit *line, std::function<Limits()> limits);

    /// Of a spin box of a form, null for any other widget.
    static NumberField *of(const QWidget *widget);

    /// Whether the limits are those of a drive that was read; a refusal then says so.
    void setLimitsAreDrives(bool known) { m_limitsAreDrives = known; }
    bool limitsAreDrives() const { return m_limitsAreDrives; }
    /// "This drive: 0 to 35 A".
    QString driveLimitsText() const;
    /// Why the text that was typed last was refused; empty when it was not, when something was typed since, and the
    /// second time: whoever is about to move a drive by this field asks first.
    QString takeRefusal();
    /// Whether a number is being typed that the box does not have yet.
    bool holdsNewNumber() const;

    /// To be called when the box was given a value, so that no mark stays from what was typed before.
    void refresh();

    // What the boxes pass on.
    QValidator::State validate(const QString &text) const;
    double numberOf(const QString &text) const;
    QString textOf(double value) const;
    /// Puts the old value in the place of a text that cannot be taken, and says so.
    void replaceRefused(QString &text);

signals:
    void refused(const QString &why);

private:
    QString typedPart(QString text) const;
    QString why(const QString &typed, const TypedNumber &number) const;
    QString withUnit(double value) const;
    bool cannotBecomeValid(const QString &text) const;
    void mark(const QString &text);

    QAbstractSpinBox *m_box;
    QLineEdit *m_line;
    std::function<Limits()> m_limits;
    QString m_refusal;
    bool m_limitsAreDrives = false;
    bool m_marked = false;
};

/// A field for whole numbers, for use in forms.
class WholeNumberBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit WholeNumberBox(QWidget *parent = nullptr);
    QValidator::State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;

protected:
    int valueFromText(const QString &text) const override;
    QString textFromValue(int value) const override;

private:
    NumberField *m_field;
};

/// A field for numbers with decimals, for use in forms.
class DecimalBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit DecimalBox(QWidget *parent = nullptr);
    QValidator::State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;

protected:
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;

private:
    NumberField *m_field;
};

#endif
