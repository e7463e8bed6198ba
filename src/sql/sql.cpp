#include "sql/sql.h"

#include <algorithm>
#include <stdexcept>

namespace {

bool IsNameCharacter(QChar c)
{
    return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'_');
}

} // namespace

Sql::Sql(const QString& statement)
    : m_statement(statement)
{
    FindMarkers(0);
}

Sql::Sql(const char* statement)
    : Sql(QString::fromUtf8(statement))
{
}

void Sql::FindMarkers(qsizetype from)
{
    for (qsizetype open = m_statement.indexOf(u'{', from); open >= 0; open = m_statement.indexOf(u'{', open + 1)) {
        qsizetype end = open + 1;
        while (end < m_statement.size() && IsNameCharacter(m_statement[end]))
            ++end;
        if (end > open + 1 && end < m_statement.size() && m_statement[end] == u'}')
            m_markers.append({open, end + 1 - open, -1});
    }
}

Sql& Sql::Fill(const char* name, const QString& value)
{
    const QLatin1StringView wanted(name);
    bool found = false;
    for (Marker& marker : m_markers) {
        if (QStringView(m_statement).mid(marker.start + 1, marker.length - 2) != wanted)
            continue;
        found = true;
        if (marker.value < 0) {
            marker.value = m_values.size();
            m_values.append(value);
        } else {
            m_values[marker.value] = value;
        }
    }
    if (!found)
        throw std::logic_error("No marker {" + std::string(name) + "} in: " + m_statement.toStdString());
    return *this;
}

Sql& Sql::Text(const char* name, const QString& value)
{
    return Fill(name, SqlText(value));
}

Sql& Sql::Raw(const char* name, const QString& value)
{
    return Fill(name, value);
}

Sql& Sql::Number(const char* name, qint64 value)
{
    return Fill(name, QString::number(value));
}

Sql& Sql::Bool(const char* name, bool value)
{
    return Fill(name, value ? QStringLiteral("true") : QStringLiteral("false"));
}

Sql& Sql::Date(const char* name, const QDate& value)
{
    return Fill(name, value.toString(Qt::ISODate));
}

Sql& Sql::Append(const QString& clause)
{
    const qsizetype end = m_statement.size();
    m_statement += clause;
    FindMarkers(end);
    return *this;
}

const QString& Sql::Filled() const
{
    qsizetype size = m_statement.size();
    for (const Marker& marker : m_markers) {
        if (marker.value < 0)
            throw std::logic_error("A marker is not filled in: " + m_statement.toStdString());
        size += m_values[marker.value].size() - marker.length;
    }
    // Its memory stays for the next filling.
    m_filled.resize(size);
    QChar* at = m_filled.data();
    const QChar* from = m_statement.cbegin();
    for (const Marker& marker : m_markers) {
        const QString& value = m_values[marker.value];
        at = std::copy(from, m_statement.cbegin() + marker.start, at);
        at = std::copy(value.cbegin(), value.cend(), at);
        from = m_statement.cbegin() + marker.start + marker.length;
    }
    std::copy(from, m_statement.cend(), at);
    return m_filled;
}

QString SqlText(const QString& value)
{
    if (!value.contains(u'\''))
        return value;
    QString doubled = value;
    return doubled.replace(QLatin1Char('\''), QLatin1String("''"));
}
