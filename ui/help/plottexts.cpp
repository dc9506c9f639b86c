#include "plottexts.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

// Of a static library, whose resources nobody else would ask for.
static void initResources()
{
    Q_INIT_RESOURCE(pagescripts);
}

static QString readResource(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString plotScripts()
{
    initResources();
    QString all;
    for (const char *name : {"scope/base", "scope/timeaxis", "scope/units", "scope/legend", "scope/overlay",
                             "scope/cursors", "scope/input", "scope/panel", "scope/frame", "plotview"})
        all += readResource(QStringLiteral(":/pagescripts/%1.js").arg(QLatin1String(name)));
    return all;
}

QString scriptLiteral(const QString &text)
{
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

QString harmlessJson(const QJsonObject &object)
{
    QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    json.replace('<', "\\u003c").replace('>', "\\u003e").replace('&', "\\u0026");
    return QString::fromUtf8(json);
}

QString withScope(const QString &page, const QJsonObject &scope)
{
    const QString element =
        QStringLiteral("<script type=\"application/json\" id=\"velbrin-scope\">%1</script>\n").arg(harmlessJson(scope));
    const qsizetype end = page.lastIndexOf(QLatin1String("</body>"));
    return end < 0 ? page + element : page.left(end) + element + page.mid(end);
}
