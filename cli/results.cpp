#include "results.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString asText(const QVariant &value)
{
    return value.type() == QVariant::Double ? shortNumber(value.toDouble()) : value.toString();
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
    if (results.json.isArray())
        return QJsonDocument(results.json.toArray()).toJson();
    return results.json.isObject() ? QJsonDocument(results.json.toObject()).toJson() : QByteArray();
}
