#include "captureaid.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

CaptureAid::CaptureAid(const Controls &controls, QObject *parent) : QObject(parent), m_controls(controls)
{
    QWidget *page = controls.layout->parentWidget();
    m_length = new QLabel(page);
    m_length->setObjectName(QStringLiteral("recordLength"));
    m_length->setWordWrap(true);
    m_callOff = new QPushButton(tr("Call off"), page);
    m_callOff->setObjectName(QStringLiteral("callOffCapture"));
    m_callOff->setToolTip(tr("Ends the waiting for a trigger. What the drive does goes on."));
    m_callOff->setEnabled(false);
    const int row = controls.layout->rowCount();
    controls.layout->addWidget(m_length, row, 0, 1, 2);
    controls.layout->addWidget(m_callOff, row, 2);
    connect(m_callOff, &QPushButton::clicked, this, &CaptureAid::callOffAsked);
    connect(controls.rate, &QComboBox::currentTextChanged, this, &CaptureAid::refresh);
    for (const QCheckBox *channel : controls.channels)
        connect(channel, &QCheckBox::toggled, this, &CaptureAid::refresh);
    refresh();
}

void CaptureAid::refresh()
{
    const double rate = m_controls.rate->currentText().section(QLatin1Char(' '), 0, 0).toDouble();
    const auto chosen = std::count_if(m_controls.channels.cbegin(), m_controls.channels.cend(),
                                      [](const QCheckBox *channel) { return channel->isChecked(); });
    const QString text = recordText(rate, int(chosen), m_controls.move());
    if (m_length->text() != text)
        m_length->setText(text);
}

void CaptureAid::captureStateChanged(CaptureState state)
{
    m_callOff->setEnabled(state == CaptureState::Waiting);
}
