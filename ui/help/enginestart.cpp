#include "enginestart.h"

#include "plotscheme.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QQuickWindow>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString processPath()
{
    const QString own = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    return own.isEmpty()
               ? QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + QLatin1String("/QtWebEngineProcess")
               : own;
}

bool isSandboxOff()
{
    return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1;
}

/// Whether the system lets a process of ours have name spaces of its own, which the engine's sandbox is made of.
bool systemAllowsSandbox()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0 ? 0 : 1);
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

QtMessageHandler otherMessages = nullptr;

/// Without what Qt and the engine say about a graphics driver that is not wanted: it reads like a fault.
void withoutDriverTalk(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    for (const char *known :
         {"QXcbIntegration: Cannot create platform OpenGL context", "No suitable graphics backend found"}) {
        if (type == QtWarningMsg && text.startsWith(QLatin1String(known)))
            return;
    }
    otherMessages(type, context, text);
}

void keepQuietAboutDriver()
{
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false\nqt.webenginecontext.debug=false"));
    if (!otherMessages)
        otherMessages = qInstallMessageHandler(withoutDriverTalk);
}

} // namespace

void prepareEngine()
{
    keepQuietAboutDriver();
    registerPlotScheme();
    // Help and charts need no graphics processor, and then no driver of one can fail.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // The toolkit would load the driver all the same: some 50 ms before the first paint, and 35 MB.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    flags += " --disable-gpu";
    if (geteuid() == 0) // the engine refuses to start a sandbox for root
        flags += " --no-sandbox";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
}

QString whyEngineCannotStart()
{
    if (!QFileInfo(processPath()).isExecutable())
        return QCoreApplication::translate("HelpView", "its program %1 is missing").arg(processPath());
    if (geteuid() != 0 && !isSandboxOff() && !systemAllowsSandbox())
        return QCoreApplication::translate("HelpView", "this system does not allow its sandbox (user name spaces)");
    return QString();
}
