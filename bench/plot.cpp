// What it takes from pressing "Start capture" to the plot, on a line as quick as a real one, and what drawing a capture
// of sixteen channels into the open view takes. Each beside what it cannot be quicker than, measured in the same run.
#include "connection.h"
#include "enginestart.h"
#include "helpview.h"
#include "mw.h"
#include "scopechannels.h"
#include "scopedesk.h"
#include "virtualport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

namespace {

constexpr int rounds = 20;
constexpr int limitMs = 30000;
constexpr int words = 2000;  // of the recorder
constexpr int instantly = 3; // row of the trigger list

bool waitUntil(const std::function<bool()> &holds)
{
    QElapsedTimer waited;
    waited.start();
    while (!holds()) {
        if (waited.elapsed() > limitMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 5);
    }
    return true;
}

QVariant ask(HelpView &view, const QString &script)
{
    bool came = false;
    QVariant answer;
    view.runScript(script, [&](const QVariant &value) {
        answer = value;
        came = true;
    });
    return waitUntil([&] { return came; }) ? answer : QVariant();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

void tell(const char *what, const std::vector<double> &ms, const char *beside, const std::vector<double> &than)
{
    std::printf("%-28s %7.1f ms, worst %7.1f   %-34s %7.1f ms   ratio %.2f\n", what, median(ms),
                *std::max_element(ms.begin(), ms.end()), beside, median(than), median(ms) / median(than));
}

// --- Drawing ------------------------------------------------------------------------------------------------------

CaptureRecord sixteenChannels()
{
    CaptureRecord capture;
    capture.samplePeriod = 0.0004;
    capture.time = QDateTime::currentDateTime();
    capture.channels = scopeChannels().mid(0, 16);
    for (CaptureData &channel : capture.channels) {
        channel.enabled = true;
        for (int k = 0; k < words / capture.channels.size(); ++k)
            channel.samples.append({k * capture.samplePeriod, 500 * std::sin(k * 0.05) * channel.scale});
    }
    return capture;
}

/// The same curves by the chart library alone, without page, bar and tables.
const char *const chartsAlone = R"((function () {
    var begin = performance.now();
    velbrinScope.charts.forEach(function (chart) {
        jQuery.plot(chart.element, chart.plot.getData().map(function (series) { return { data: series.data }; }), {});
    });
    return performance.now() - begin;
})())";

bool draw()
{
    HelpView view(nullptr, HelpView::Engine::Allowed);
    view.resize(1400, 900);
    view.show();
    ScopeDesk desk;
    const QUrl base = QUrl::fromLocalFile(QDir::current().filePath(QStringLiteral("flot/examples/")));
    QObject::connect(&desk, &ScopeDesk::plotReady, &view, [&](const QString &page, QJsonObject scope, bool) {
        scope.insert(QStringLiteral("isOpenedOut"), true);
        view.showPlot(page, base, HelpView::Zoom::Keep, scope);
    });
    desk.captured(sixteenChannels());
    if (!waitUntil(
            [&] { return ask(view, QStringLiteral("Boolean(window.velbrinView && velbrinView.drawn)")).toBool(); }))
        return false;
    std::vector<double> drawn, alone;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer taken;
        taken.start();
        desk.captured(sixteenChannels());
        if (ask(view, QStringLiteral("velbrinScope.charts.length")).toInt() == 0)
            return false;
        drawn.push_back(taken.nsecsElapsed() / 1e6);
        waitUntil([waited = std::make_shared<QElapsedTimer>()] { // the figures come
            if (!waited->isValid())
                waited->start();
            return waited->elapsed() > 50;
        });
    }
    for (int i = 0; i < rounds; ++i)
        alone.push_back(ask(view, QString::fromLatin1(chartsAlone)).toDouble());
    tell("draw 16 channels", drawn, "the charts alone", alone);
    return true;
}

// --- From the press to the plot -----------------------------------------------------------------------------------

/// Agrees to the disclaimer and opens the first drive of the list.
void answerBoxes()
{
    QWidget *open = QApplication::activeModalWidget();
    const auto *box = qobject_cast<QMessageBox *>(open);
    const auto buttons = box ? box->buttons() : QList<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->text() == MW::tr("I Agree"))
            button->click();
    }
    auto *nodes = open ? open->findChild<QListWidget *>(QStringLiteral("nodeList")) : nullptr;
    if (nodes && nodes->count() > 0) {
        nodes->setCurrentRow(0);
        open->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Open)->click();
    }
}

bool isConnected(MW &window)
{
    NodeType node;
    node.address = 5;
    node.deviceType = 11000;
    QMetaObject::invokeMethod(&window, "availableBusNodesListReceived", Q_ARG(QList<NodeType>, {node}));
    return waitUntil([&] { return window.session().valuesAreComplete(); });
}

bool press()
{
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, &answering, answerBoxes);
    answering.start(1);
    MW::Options options;
    options.virtualPort = VirtualPort::portName();
    MW window(options);
    window.show();
    if (!isConnected(window))
        return false;
    window.findChild<QListWidget *>(QStringLiteral("pageSelector"))->setCurrentRow(6);
    window.findChild<QComboBox *>(QStringLiteral("captureTrigger"))->setCurrentIndex(instantly);
    auto *start = window.findChild<QAbstractButton *>(QStringLiteral("ScopeCaptureNow"));
    auto *view = window.findChild<HelpView *>();
    QElapsedTimer taken;
    std::vector<double> data, plot;
    QObject::connect(&window.session(), &Connection::plotReady, &window,
                     [&] { data.push_back(taken.nsecsElapsed() / 1e6); });
    for (int i = 0; i <= rounds; ++i) {
        const QString idle = start->text();
        taken.start();
        start->click();
        const QString count =
            QStringLiteral("window.velbrinScope && (velbrinScope.context.captures || [{id: 0}])[0].id");
        if (!waitUntil([&] { return int(data.size()) == i + 1; }) ||
            !waitUntil([&] { return ask(*view, count).toInt() == i + 1; }))
            return false;
        plot.push_back(taken.nsecsElapsed() / 1e6);
        waitUntil([&] { return start->text() == idle; });
    }
    data.erase(data.begin()); // with the first the page is loaded
    plot.erase(plot.begin());
    tell("press to plot, 460800 baud", plot, "until the samples are there", data);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "*.debug=false;js.info=false");
    qputenv("VELBRIN_WIKI", "http://127.0.0.1:9"); // nobody answers
    qputenv("VELBRIN_UPDATE_SERVER", "http://127.0.0.1:9");
    prepareEngine();
    QApplication application(argc, argv);
    QDir::setCurrent(QCoreApplication::applicationDirPath() + QLatin1String("/../data"));
    const VirtualPort port(QStringLiteral("keta"), VirtualPort::Pace::RealLine);
    if (!port.error().isEmpty()) {
        std::fprintf(stderr, "no virtual drive: %s\n", qPrintable(port.error()));
        return 1;
    }
    if (draw() && press())
        return 0;
    std::fprintf(stderr, "nothing came within %d s\n", limitMs / 1000);
    return 1;
}
