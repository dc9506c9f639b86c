#include "gainspanel.h"

#include "numberbox.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr const char *gains[] = {"KVP", "KVI", "KPP", "VFF", "AFF"};
constexpr int perRow = 3; // velocity and position above, feed-forward below

} // namespace

GainsPanel::GainsPanel(QWidget *window, QWidget *parent) : QGroupBox(parent)
{
    setTitle(tr("Gains"));
    setObjectName(QStringLiteral("gainsGroup"));
    auto *layout = new QGridLayout(this);
    for (const char *name : gains) {
        auto *source = window->findChild<QSpinBox *>(QLatin1String(name));
        if (!source)
            continue;
        auto *here = new WholeNumberBox(this);
        here->setObjectName(QLatin1String("gain") + QLatin1String(name));
        here->setFocusPolicy(Qt::StrongFocus);
        here->setKeyboardTracking(false);
        auto *caption = new QLabel(QLatin1Char('[') + QLatin1String(name) + QLatin1Char(']'), this);
        caption->setBuddy(here);
        const int row = int(m_fields.size()) / perRow, column = int(m_fields.size()) % perRow;
        layout->addWidget(caption, row, 2 * column);
        layout->addWidget(here, row, 2 * column + 1);
        couple(source, here);
    }
    m_apply = new QPushButton(this);
    m_apply->setObjectName(QStringLiteral("gainsApply"));
    m_apply->setToolTip(tr("<p>Gives the drive all changed settings, as the button under the pages does.</p>"));
    layout->addWidget(m_apply, layout->rowCount(), 0, 1, 2 * perRow);
    for (int column = 0; column < perRow; ++column)
        layout->setColumnStretch(2 * column + 1, 1);
    connect(m_apply, &QPushButton::clicked, this, &GainsPanel::applyWanted);
    refresh();
}

void GainsPanel::couple(QSpinBox *source, WholeNumberBox *here)
{
    m_fields.append({source, here});
    connect(here, QOverload<int>::of(&QSpinBox::valueChanged), source, &QSpinBox::setValue);
    connect(source, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { refresh(); });
}

void GainsPanel::refresh()
{
    for (const Field &field : m_fields) {
        const QSignalBlocker blocker(field.here);
        field.here->setRange(field.source->minimum(), field.source->maximum());
        field.here->setSingleStep(field.source->singleStep());
        if (field.here->value() != field.source->value())
            field.here->setValue(field.source->value());
        field.here->setToolTip(field.source->toolTip());
        field.here->setEnabled(field.source->isEnabled());
        if (const NumberField *original = NumberField::of(field.source))
            NumberField::of(field.here)->setLimitsAreDrives(original->limitsAreDrives());
    }
}

void GainsPanel::showApply(const QString &text, bool isEnabled)
{
    m_apply->setText(text);
    m_apply->setEnabled(isEnabled);
}
