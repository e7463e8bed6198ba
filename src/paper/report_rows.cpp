#include "paper/report_rows.h"

#include "base/clock.h"

#include <QByteArray>

#include <cstring>

namespace {
constexpr size_t BlockSize = 65'536;
constexpr qint64 MillisecondsADay = 24LL * 60 * 60 * 1000;

enum Kind : char { Null, Number, Money, Moment, ShortText, LongText };

qint64 Packed(const QDateTime& date)
{
    return date.date().toJulianDay() * MillisecondsADay + date.time().msecsSinceStartOfDay();
}

QDateTime Unpacked(qint64 moment)
{
    return MomentOf(QDate::fromJulianDay(moment / MillisecondsADay),
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(moment % MillisecondsADay)));
}

template <typename Number>
Number ReadAs(const char* bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

size_t SizeOf(const char* cell)
{
    switch (cell[0]) {
    case Null:
        return 1;
    case ShortText:
        return 2 + static_cast<unsigned char>(cell[1]);
    case LongText:
        return 1 + sizeof(quint32) + ReadAs<quint32>(cell + 1);
    default:
        return 1 + sizeof(qint64);
    }
}

ReportValue Read(const char* cell)
{
    switch (cell[0]) {
    case Null:
        return {};
    case Number:
        return ReadAs<double>(cell + 1);
    case Money:
        return Currency::FromTenThousandths(ReadAs<qint64>(cell + 1));
    case Moment:
        return Unpacked(ReadAs<qint64>(cell + 1));
    case ShortText:
        return QString::fromUtf8(cell + 2, static_cast<unsigned char>(cell[1]));
    default:
        return QString::fromUtf8(cell + 1 + sizeof(quint32), ReadAs<quint32>(cell + 1));
    }
}
} // namespace

ReportTable::ReportTable(const QStringList& fields)
    : m_fields(fields)
{
}

int ReportTable::Field(const QString& name) const
{
    for (int i = 0; i < m_fields.size(); ++i)
        if (m_fields[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    const QString behindTable = QLatin1Char('.') + name;
    for (int i = 0; i < m_fields.size(); ++i)
        if (m_fields[i].endsWith(behindTable, Qt::CaseInsensitive))
            return i;
    return -1;
}

void ReportTable::Append(char kind, const void* data, size_t size)
{
    m_row.push_back(kind);
    m_row.append(static_cast<const char*>(data), size);
}

void ReportTable::Add(const ReportValue& value)
{
    if (const auto* number = std::get_if<double>(&value)) {
        Append(Number, number, sizeof *number);
    } else if (const auto* money = std::get_if<Currency>(&value)) {
        const qint64 count = money->TenThousandths();
        Append(Money, &count, sizeof count);
    } else if (const auto* date = std::get_if<QDateTime>(&value)) {
        const qint64 moment = Packed(*date);
        Append(Moment, &moment, sizeof moment);
    } else if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray utf8 = text->toUtf8();
        AddText(std::string_view(utf8.constData(), static_cast<size_t>(utf8.size())));
    } else {
        m_row.push_back(Null);
    }
}

void ReportTable::AddText(std::string_view utf8)
{
    if (utf8.size() <= 255) {
        m_row.push_back(ShortText);
        m_row.push_back(static_cast<char>(utf8.size()));
    } else {
        const auto size = static_cast<quint32>(utf8.size());
        Append(LongText, &size, sizeof size);
    }
    m_row.append(utf8);
}

void ReportTable::EndRow()
{
    if (m_blocks.empty() || m_blockUsed + m_row.size() > BlockSize) {
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(std::max(BlockSize, m_row.size())));
        m_blockUsed = 0;
    }
    char* place = m_blocks.back().get() + m_blockUsed;
    std::memcpy(place, m_row.data(), m_row.size());
    m_blockUsed += m_row.size();
    m_rows.push_back(place);
    m_row.clear();
}

ReportValue ReportTable::At(int row, int field) const
{
    if (field < 0)
        return {};
    const char* cell = m_rows[static_cast<size_t>(row)];
    for (int i = 0; i < field; ++i)
        cell += SizeOf(cell);
    return Read(cell);
}
