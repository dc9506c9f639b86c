#include "plotpicture.h"

#include "outputfile.h"

#include <QBuffer>
#include <QPointer>
#include <QtMath>
#include <cmath>

namespace {
constexpr int timeLimitMs = 20000;
constexpr int stepMs = 40;

/// The view's size for so many pixels of the picture. Where the scale of the screen does not divide them, the last
/// pixels of the view are only partly covered and hold anything: then it is larger, and compare() cuts that off.
int logicalSize(int pixels, double scale)
{
    const double exact = pixels / scale;
    return exact == std::floor(exact) ? int(exact) : qCeil(exact) + 1;
}

} // namespace

PlotPicture::PlotPicture(QWebEngineProfile *profile, const QUrl &url, const QString &file, int width)
    : m_file(file), m_width(width), m_page(profile, nullptr)
{
    m_view.setAttribute(Qt::WA_DontShowOnScreen);
    m_view.setPage(&m_page);
    const double ratio = m_view.devicePixelRatioF();
    m_page.setZoomFactor(1.0 / ratio);
    m_view.resize(logicalSize(width, ratio), logicalSize(width, ratio));
    m_view.show();
    connect(&m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this] { end(tr("the browser engine has ended unexpectedly")); });
    connect(&m_page, &QWebEnginePage::loadFinished, this, [this](bool ok) {
        if (!ok)
            end(tr("the plot could not be loaded"));
    });
    m_page.load(url);
    m_timer.setInterval(stepMs);
    connect(&m_timer, &QTimer::timeout, this, &PlotPicture::look);
    m_timer.start();
    m_sinceStart.start();
}

void PlotPicture::begin(const QString &state)
{
    m_state = state.isEmpty() ? QStringLiteral("null") : state;
}

void PlotPicture::look()
{
    if (m_sinceStart.elapsed() > timeLimitMs)
        return end(tr("the plot could not be drawn in %1 s").arg(timeLimitMs / 1000));
    if (m_state.isEmpty() || m_asking)
        return;
    if (m_painted)
        return compare();
    m_asking = true;
    const QString question = m_height == 0 ? QStringLiteral("prepareForPicture(%1)").arg(m_state)
                                           : QStringLiteral("isPainted(%1)").arg(m_height);
    m_page.runJavaScript(QStringLiteral("window.velbrinView && velbrinView.drawn ? velbrinView.%1 : 0").arg(question),
                         0, [self = QPointer<PlotPicture>(this)](const QVariant &answer) {
                             if (self)
                                 self->take(answer);
                         });
}

void PlotPicture::take(const QVariant &answer)
{
    m_asking = false;
    if (m_height > 0) {
        m_painted = answer.toBool();
    } else if (answer.toInt() > 0) {
        m_height = answer.toInt();
        m_view.resize(m_view.width(), logicalSize(m_height, m_view.devicePixelRatioF()));
    }
}

void PlotPicture::compare()
{
    const QImage now = m_view.grab().toImage().copy(0, 0, m_width, m_height);
    if (now == m_last && !isBlank(now))
        write(now);
    m_last = now;
}

bool PlotPicture::isBlank(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); y += 7) {
        for (int x = 0; x < image.width(); x += 7) {
            if (image.pixel(x, y) != first)
                return false;
        }
    }
    return true;
}

void PlotPicture::write(QImage image)
{
    image.setDevicePixelRatio(1.0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    if (bytes.isEmpty())
        return end(tr("the plot is too large for a picture"));
    OutputFile file(m_file);
    const QString problem = file.open();
    end(problem.isEmpty() ? file.write(bytes) : problem);
}

void PlotPicture::end(const QString &failure)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_timer.stop();
    const QString text =
        tr("Error writing graphs to file %1<br>%2").arg(m_file.toHtmlEscaped(), failure.toHtmlEscaped());
    emit ended(failure.isEmpty() ? QString() : text);
}
