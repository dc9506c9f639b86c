#include "results.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

QString asText(const QVariant &value)
{
    return value.typeId() == QMetaType::Double ? shortNumber(value.toDouble()) : value.toString();
}

QJsonDocument document(const QJsonValue &value)
{
    return value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
}

} // namespace

QStringList tabSeparated(const Table &table)
{
    QStringList lines;
    for (const QVariantList &row : table.rows) {
        QStringList fields;
        for (const QVariant &value : row)
            fields.append(asText(value));
        lines.append(fields.join(QLatin1Char('\t')));
    }
    return lines;
}

QJsonValue toJson(const Table &table)
{
    QJsonArray array;
    for (const QVariantList &row : table.rows) {
        QJsonObject object;
        for (int column = 0; column < row.size(); ++column)
            object.insert(table.columns.at(column), QJsonValue::fromVariant(row.at(column)));
        array.append(object);
    }
    return array;
}

QByteArray printed(const Results &results, bool asJson)
{
    if (!asJson)
        return results.lines.isEmpty() ? QByteArray() : results.lines.join(QLatin1Char('\n')).toUtf8() + '\n';
    return results.json.isUndefined() ? QByteArray() : document(results.json).toJson();
}

QByteArray printedBlock(const Results &results, bool asJson)
{
    if (asJson)
        return document(results.json).toJson(QJsonDocument::Compact) + '\n';
    QStringList lines = results.lines;
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n')).toUtf8() + "\n\n";
}

bool writeOut(const QByteArray &text)
{
    return std::fwrite(text.constData(), 1, text.size(), stdout) == size_t(text.size()) && std::fflush(stdout) == 0;
}
