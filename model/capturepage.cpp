#include "capturepage.h"

#include <QJsonDocument>

namespace {

const char blockBegin[] = "<script type=\"application/json\" id=\"velbrin-capture\">";
const char blockEnd[] = "</script>";

} // namespace

QString withCaptureBlock(const QString &page, const QJsonObject &block)
{
    // Outside of texts JSON has none of these characters, and inside of texts the escape means the same.
    QByteArray json = QJsonDocument(block).toJson(QJsonDocument::Compact);
    json.replace('<', "\\u003c").replace('>', "\\u003e").replace('&', "\\u0026");
    const QString element =
        QLatin1String(blockBegin) + QString::fromUtf8(json) + QLatin1String(blockEnd) + QLatin1Char('\n');
    const qsizetype end = page.lastIndexOf(QLatin1String("</body>"), -1, Qt::CaseInsensitive);
    return end < 0 ? page + element : page.left(end) + element + page.mid(end);
}

QByteArray captureBlockOf(const QByteArray &page)
{
    const qsizetype begin = page.lastIndexOf(blockBegin);
    if (begin < 0)
        return QByteArray();
    const qsizetype from = begin + qsizetype(sizeof blockBegin) - 1;
    const qsizetype end = page.indexOf(blockEnd, from);
    return end < 0 ? page.mid(from) : page.mid(from, end - from);
}
