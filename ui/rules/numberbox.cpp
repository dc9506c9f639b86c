#include "numberbox.h"

#include <QLineEdit>
#include <QLocale>
#include <QPalette>
#include <QRegularExpression>

namespace {

constexpr int minusSign = 0x2212; // as texts have it that were copied from a data sheet
constexpr double markStrength = 0.35;

/// The field's own colour with some red in it, so that the text stays readable on a dark desktop, too.
QColor markedColour(const QColor &base)
{
    const auto mixed = [](int from, int to) { return int(from + (to - from) * markStrength); };
    return {mixed(base.red(), 255), mixed(base.green(), 40), mixed(base.blue(), 40)};
}

} // namespace

TypedNumber readTypedNumber(const QString &text, int decimals)
{
    static const QRegularExpression form(QStringLiteral("^([+-]?)(\\d*)(?:([.,])(\\d*))?$"));
    QString typed = text.trimmed();
    if (typed.startsWith(QChar(minusSign)))
        typed[0] = QLatin1Char('-');
    const QRegularExpressionMatch match = form.match(typed);
    if (!match.hasMatch())
        return {TypedNumber::NotANumber};
    if (!match.captured(3).isEmpty() && decimals == 0)
        return {TypedNumber::NotWhole};
    QString fraction = match.captured(4);
    if (match.captured(2).isEmpty() && fraction.isEmpty())
        return {TypedNumber::Incomplete};
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    if (fraction.size() > decimals)
        return {TypedNumber::TooManyDecimals};
    return {TypedNumber::Number,
            QString(match.captured(1) + QLatin1Char('0') + match.captured(2) + QLatin1Char('.') + fraction).toDouble()};
}

NumberField::NumberField(QAbstractSpinBox *box, QLineEdit *line, std::function<Limits()> limits)
    : QObject(box), m_box(box), m_line(line), m_limits(std::move(limits))
{
    // A half-typed number is nobody's value: on the way to 40 A, beyond the limit, stand 4 A.
    m_box->setKeyboardTracking(false);
    connect(m_line, &QLineEdit::textChanged, this, &NumberField::mark);
    connect(m_line, &QLineEdit::textEdited, this, [this] { m_refusal.clear(); });
}

NumberField *NumberField::of(const QWidget *widget)
{
    return widget ? widget->findChild<NumberField *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

QString NumberField::driveLimitsText() const
{
    const Limits limits = m_limits();
    return tr("This drive: %1 to %2")
        .arg(QString::number(limits.lowest, 'g', QLocale::FloatingPointShortest), withUnit(limits.highest));
}

QString NumberField::takeRefusal()
{
    return std::exchange(m_refusal, QString());
}

bool NumberField::holdsNewNumber() const
{
    const QString text = m_line->displayText();
    return validate(text) == QValidator::Acceptable && numberOf(text) != m_limits().value;
}

QValidator::State NumberField::validate(const QString &text) const
{
    const Limits limits = m_limits();
    if (!m_box->specialValueText().isEmpty() && text == m_box->specialValueText())
        return QValidator::Acceptable;
    const TypedNumber number = readTypedNumber(typedPart(text), limits.decimals);
    // Never "invalid": the toolkit would leave a character out, and the rest is another number.
    return number.verdict == TypedNumber::Number && number.value >= limits.lowest && number.value <= limits.highest
               ? QValidator::Acceptable
               : QValidator::Intermediate;
}

double NumberField::numberOf(const QString &text) const
{
    if (!m_box->specialValueText().isEmpty() && text == m_box->specialValueText())
        return m_limits().lowest;
    return readTypedNumber(typedPart(text), m_limits().decimals).value;
}

QString NumberField::textOf(double value) const
{
    return QString::number(value, 'f', m_limits().decimals);
}

void NumberField::replaceRefused(QString &text)
{
    const QString typed = typedPart(text);
    const TypedNumber number = readTypedNumber(typed, m_limits().decimals);
    text = textOf(m_limits().value) + m_box->property("suffix").toString();
    if (number.verdict == TypedNumber::Incomplete)
        return; // nothing was meant yet
    m_refusal = why(typed, number);
    // Behind the toolkit's reading of the field.
    QMetaObject::invokeMethod(
        this,
        [this, refusal = m_refusal] {
            refresh();
            emit refused(refusal);
        },
        Qt::QueuedConnection);
}

// The toolkit changes the line in silence when it shows a value.
void NumberField::refresh()
{
    mark(m_line->displayText());
}

/// Without the unit, which the toolkit puts behind whatever is typed; somebody may have typed it as well.
QString NumberField::typedPart(QString text) const
{
    const QString suffix = m_box->property("suffix").toString();
    if (!suffix.isEmpty() && text.endsWith(suffix))
        text.chop(suffix.size());
    text = text.trimmed();
    if (!suffix.isEmpty() && text.endsWith(suffix.trimmed()))
        text.chop(suffix.trimmed().size());
    return text.trimmed();
}

QString NumberField::why(const QString &typed, const TypedNumber &number) const
{
    const Limits limits = m_limits();
    const QString kept = withUnit(limits.value);
    switch (number.verdict) {
    case TypedNumber::NotWhole:
        return tr("%1 is not a whole number; it stays at %2").arg(typed, kept);
    case TypedNumber::TooManyDecimals:
        return tr("%1 has more than %2 decimals; it stays at %3").arg(typed).arg(limits.decimals).arg(kept);
    case TypedNumber::Number:
        break;
    default:
        return tr("\"%1\" is not a number; it stays at %2").arg(typed, kept);
    }
    const QString asked = typed + m_box->property("suffix").toString();
    const QString limit = withUnit(number.value > limits.highest ? limits.highest : limits.lowest);
    return (m_limitsAreDrives ? tr("%1 is beyond this drive's limit of %2; it stays at %3")
                              : tr("%1 is beyond the limit of %2; it stays at %3"))
        .arg(asked, limit, kept);
}

QString NumberField::withUnit(double value) const
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest) + m_box->property("suffix").toString();
}

bool NumberField::cannotBecomeValid(const QString &text) const
{
    if (validate(text) == QValidator::Acceptable)
        return false;
    const Limits limits = m_limits();
    const TypedNumber number = readTypedNumber(typedPart(text), limits.decimals);
    if (number.verdict != TypedNumber::Number)
        return number.verdict != TypedNumber::Incomplete;
    // More digits lead away from zero, so that 4 may still become 48.
    return number.value > 0 ? number.value > limits.highest : number.value < limits.lowest;
}

void NumberField::mark(const QString &text)
{
    const bool marked = cannotBecomeValid(text);
    if (marked == m_marked)
        return;
    m_marked = marked;
    QPalette palette;
    if (marked)
        palette.setColor(QPalette::Base, markedColour(m_box->palette().color(QPalette::Base)));
    m_line->setPalette(palette);
    m_box->setPalette(palette);
    m_box->setProperty("refusedText", marked);
}

WholeNumberBox::WholeNumberBox(QWidget *parent)
    : QSpinBox(parent), m_field(new NumberField(this, lineEdit(), [this] {
          return NumberField::Limits{double(minimum()), double(maximum()), 0, double(value())};
      }))
{
}

QValidator::State WholeNumberBox::validate(QString &text, int &) const
{
    return m_field->validate(text);
}

void WholeNumberBox::fixup(QString &text) const
{
    m_field->replaceRefused(text);
}

int WholeNumberBox::valueFromText(const QString &text) const
{
    return int(m_field->numberOf(text));
}

QString WholeNumberBox::textFromValue(int value) const
{
    return m_field->textOf(value);
}

DecimalBox::DecimalBox(QWidget *parent)
    : QDoubleSpinBox(parent), m_field(new NumberField(this, lineEdit(), [this] {
          return NumberField::Limits{minimum(), maximum(), decimals(), value()};
      }))
{
}

QValidator::State DecimalBox::validate(QString &text, int &) const
{
    return m_field->validate(text);
}

void DecimalBox::fixup(QString &text) const
{
    m_field->replaceRefused(text);
}

double DecimalBox::valueFromText(const QString &text) const
{
    return m_field->numberOf(text);
}

QString DecimalBox::textFromValue(double value) const
{
    return m_field->textOf(value);
}
