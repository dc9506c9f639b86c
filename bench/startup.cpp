// What the window costs at its start, beside a bare window with an empty view of the same web engine, as the toolkit
// brings it and under the program's own switches: time to the first paint and to the first page, and memory of all
// processes then. All are started in turn by this program, so that the machine is the same; read the ratios.
#include "enginestart.h"
#include "helpview.h"
#include "mw.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <QWebEngineView>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

constexpr int rounds = 7;

qint64 now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000 + time.tv_nsec / 1000000;
}

/// Memory of a process and its descendants, kB; shared pages count in parts.
int memoryOf(qint64 process)
{
    int sum = 0;
    QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    if (rollup.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = rollup.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("Pss:"))
                sum += line.simplified().split(' ').value(1).toInt();
        }
    }
    const QStringList all = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &entry : all) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(entry));
        const QByteArray line = stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
        if (line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toLongLong() == process)
            sum += memoryOf(entry.toLongLong());
    }
    return sum;
}

/// Tells the time of a window's first paint on standard output.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(qint64 start) : m_start(start) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = event->type() == QEvent::Paint && !m_seen ? qobject_cast<QWidget *>(watched) : nullptr;
        if (widget && qobject_cast<QMainWindow *>(widget->window())) {
            m_seen = true;
            QTimer::singleShot(0, this, [this] { std::printf("paint %lld\n", now() - m_start); });
        }
        return false;
    }

private:
    qint64 m_start;
    bool m_seen = false;
};

void tellPage(qint64 start)
{
    std::printf("page %lld\n", now() - start);
    std::printf("memory %d\n", memoryOf(getpid()) / 1024);
    std::fflush(stdout);
    QCoreApplication::exit();
}

int runBare(QApplication &application, qint64 start, const QUrl &page)
{
    PaintWatch watch(start);
    QMainWindow window;
    QWebEngineView view;
    window.setCentralWidget(&view);
    window.resize(1300, 730);
    QObject::connect(&view, &QWebEngineView::loadFinished, &window, [start] { tellPage(start); });
    window.show();
    view.load(page);
    const int status = application.exec();
    view.setParent(nullptr);
    return status;
}

int runWindow(QApplication &application, qint64 start)
{
    PaintWatch watch(start);
    QTimer agreeing;
    QObject::connect(&agreeing, &QTimer::timeout, &application, [&agreeing] {
        const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        const auto buttons = box ? box->buttons() : QList<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->text() == MW::tr("I Agree"))
                button->click();
        }
    });
    agreeing.start(1);
    MW window{MW::Options()};
    QObject::connect(window.findChild<HelpView *>(), &HelpView::pageLoaded, &window, [start](bool ok) {
        if (ok)
            tellPage(start);
    });
    window.show();
    return application.exec();
}

struct Figures
{
    QList<int> paint, page, memory;
};

void measure(const QString &what, Figures *figures)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {what, QString::number(now())});
    process.waitForFinished(60000);
    const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.split(' ');
        QList<int> *list = words[0] == "paint"    ? &figures->paint
                           : words[0] == "page"   ? &figures->page
                           : words[0] == "memory" ? &figures->memory
                                                  : nullptr;
        if (list)
            list->append(words.value(1).toInt());
    }
}

int median(QList<int> values)
{
    std::sort(values.begin(), values.end());
    return values.value(values.size() / 2);
}

void print(const char *what, const QList<int> &bare, const QList<int> &switched, const QList<int> &window)
{
    const int own = median(window);
    std::printf("%-24s %8d %9.2f %8d %9.2f %8d\n", what, median(bare), double(own) / std::max(1, median(bare)),
                median(switched), double(own) / std::max(1, median(switched)), own);
}

/// A bare window is made as anybody would make it; what the engine asks of root is no choice.
void prepareBare()
{
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

} // namespace

int main(int argc, char **argv)
{
    const QString mode = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    const qint64 start = argc > 2 ? QByteArray(argv[2]).toLongLong() : now();
    qputenv("QT_LOGGING_RULES", "*.debug=false;js.info=false");
    if (!mode.isEmpty()) {
        mode == QLatin1String("bare") ? prepareBare() : prepareEngine();
        QApplication application(argc, argv);
        const QUrl page = QUrl::fromLocalFile(QDir::current().filePath(QStringLiteral("help/Velbrin.htm")));
        return mode == QLatin1String("window") ? runWindow(application, start) : runBare(application, start, page);
    }
    QCoreApplication application(argc, argv);
    QDir::setCurrent(QCoreApplication::applicationDirPath() + QLatin1String("/../data"));
    qputenv("VELBRIN_WIKI", "http://127.0.0.1:9"); // nobody answers: the first page is the offline copy
    Figures bare, switched, window;
    for (int i = 0; i < rounds; ++i) {
        measure(QStringLiteral("bare"), &bare);
        measure(QStringLiteral("switched"), &switched); // the bare window under the switches of prepareEngine()
        measure(QStringLiteral("window"), &window);
    }
    std::printf("medians of %-13d %8s %9s %8s %9s %8s\n", rounds, "bare", "ratio", "switched", "ratio", "velbrin");
    print("first paint, ms", bare.paint, switched.paint, window.paint);
    print("first page, ms", bare.page, switched.page, window.page);
    print("memory at the page, MB", bare.memory, switched.memory, window.memory);
    return bare.page.size() == rounds && switched.page.size() == rounds && window.page.size() == rounds ? 0 : 1;
}
