#include "parameters.h"

namespace {

QString cellText(const SingleParam &p)
{
    const int whole = truncateToInt32(p.value);
    if (p.name == QLatin1String("HWSERIAL"))
        return QString::number(whole);
    if (p.name == QLatin1String("UID") || p.name == QLatin1String("BUILDREVISION"))
        return QString::number(static_cast<quint32>(whole), 16);
    return QString::number(p.value, 'g', 6);
}

} // namespace

int Parameters::getParamCount() const
{
    return m_list.size();
}

void Parameters::addParameter(int addr, const QString &name, double scaling, double offset, bool readonly, bool auxFlag,
                              const QString &devices)
{
    SingleParam p;
    p.addr = addr;
    p.name = name;
    p.scaling = scaling;
    p.offset = offset;
    p.readonly = readonly;
    p.auxFlag = auxFlag;
    p.devices = devices;
    m_list.append(p);
}

void Parameters::addParameter(const SingleParam &p)
{
    m_list.append(p);
}

SingleParam Parameters::getParam(const QString &name) const
{
    for (const SingleParam &p : m_list) {
        if (p.name == name)
            return p;
    }
    SingleParam none;
    none.name = QStringLiteral("NULL");
    return none;
}

SingleParam Parameters::getParam(int index) const
{
    return m_list.at(index);
}

bool Parameters::replaceParam(const SingleParam &p, int index)
{
    SingleParam &stored = m_list[index];
    const bool changed = stored.value != p.value; // a NaN equals nothing: on either side it counts as a change
    stored = p;
    return changed;
}

bool Parameters::replaceParam(const SingleParam &p)
{
    for (int i = 0; i < m_list.size(); ++i) {
        if (m_list.at(i).name == p.name)
            return replaceParam(p, i);
    }
    return false;
}

QString Parameters::getParamsHTMLList() const
{
    constexpr int perRow = 4;
    QString html = QStringLiteral("<h2>Parameters</h2><table class=\"paramslist\">");
    for (int i = 0; i < m_list.size(); ++i) {
        const SingleParam &p = m_list.at(i);
        if (i % perRow == 0)
            html += QLatin1String("<tr>");
        html += QStringLiteral("<td>%1</td><td>%2</td>").arg(p.name, cellText(p));
        if (i % perRow == perRow - 1 || i == m_list.size() - 1)
            html += QLatin1String("</tr>\n");
    }
    return html + QLatin1String("</table>");
}
