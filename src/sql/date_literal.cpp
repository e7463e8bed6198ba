#include "sql/date_literal.h"

#include "base/clock.h"
#include "base/regional.h"

#include <QDate>
#include <QLocale>
#include <QTime>
#include <QVarLengthArray>

namespace {

struct Part {
    enum class Kind { Number, Word, Colon };
    Kind kind;
    int number = 0;
    qsizetype digits = 0;
    QStringView word;
};
using Parts = QVarLengthArray<Part, 16>;

bool IsSeparator(QChar c)
{
    return c.isSpace() || c == u'-' || c == u'/' || c == u',' || c == u'.';
}

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

template <typename Test>
QStringView Run(QStringView text, qsizetype from, Test test)
{
    qsizetype end = from;
    while (end < text.size() && test(text[end]))
        ++end;
    return text.mid(from, end - from);
}

std::optional<Parts> Split(QStringView text)
{
    Parts parts;
    for (qsizetype at = 0; at < text.size();) {
        const QChar c = text[at];
        if (IsDigit(c)) {
            const QStringView digits = Run(text, at, IsDigit);
            if (digits.size() > 4)
                return std::nullopt;
            parts.append({Part::Kind::Number, digits.toInt(), digits.size(), {}});
            at += digits.size();
        } else if (c.isLetter()) {
            const QStringView word = Run(text, at, [](QChar letter) { return letter.isLetter(); });
            parts.append({Part::Kind::Word, 0, 0, word});
            at += word.size();
        } else if (c == u':') {
            parts.append({Part::Kind::Colon, 0, 0, {}});
            ++at;
        } else if (IsSeparator(c)) {
            ++at;
        } else {
            return std::nullopt;
        }
    }
    return parts;
}

bool IsMonth(QStringView word, const QLocale& locale, int month)
{
    for (const QLocale::FormatType format : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (QString name : {locale.monthName(month, format), locale.standaloneMonthName(month, format)}) {
            if (name.endsWith(u'.'))
                name.chop(1);
            if (word.compare(name, Qt::CaseInsensitive) == 0)
                return true;
        }
    }
    return false;
}

bool StartsEnglishMonth(QStringView word, int month)
{
    return word.size() >= 3 && QLocale::c().monthName(month).startsWith(word, Qt::CaseInsensitive);
}

/// 0 for a word that names no month.
int MonthOf(QStringView word)
{
    for (int month = 1; month <= 12; ++month) {
        if (StartsEnglishMonth(word, month) || IsMonth(word, Regional(), month))
            return month;
    }
    return 0;
}

bool IsHalfOfDay(const Part& part)
{
    return part.kind == Part::Kind::Word
        && (part.word.compare(u"AM", Qt::CaseInsensitive) == 0 || part.word.compare(u"PM", Qt::CaseInsensitive) == 0);
}

/// Takes `h:m`, `h:m:s`, each with or without AM or PM, and `h AM` out of the parts' end.
class TimeReader {
public:
    explicit TimeReader(Parts& parts)
        : m_parts(parts)
    {
    }

    /// False for a time that is none; a text without a time is midnight.
    bool Read()
    {
        TakeHalf();
        TakeNumbers();
        if (m_numbers.isEmpty())
            return m_half.isEmpty();
        return Check();
    }
    QTime Time() const { return QTime(m_hour, Number(1), Number(2)); }
    bool HasTime() const { return !m_numbers.isEmpty(); }

private:
    void TakeHalf()
    {
        if (m_parts.isEmpty() || !IsHalfOfDay(m_parts.last()))
            return;
        m_half = m_parts.last().word;
        m_parts.removeLast();
    }

    void TakeNumbers()
    {
        while (m_parts.size() >= 3 && IsNumber(m_parts.size() - 1)
            && m_parts[m_parts.size() - 2].kind == Part::Kind::Colon && m_numbers.size() < 2) {
            m_numbers.prepend(m_parts.last().number);
            m_parts.resize(m_parts.size() - 2);
        }
        const bool hourAlone = m_numbers.isEmpty() && !m_half.isEmpty();
        if ((!m_numbers.isEmpty() || hourAlone) && !m_parts.isEmpty() && IsNumber(m_parts.size() - 1)) {
            m_numbers.prepend(m_parts.last().number);
            m_parts.removeLast();
        }
    }

    bool Check()
    {
        m_hour = m_numbers.first();
        if (!m_half.isEmpty()) {
            if (m_hour < 1 || m_hour > 12)
                return false;
            m_hour = m_hour % 12 + (m_half.front().toUpper() == u'P' ? 12 : 0);
        }
        return Time().isValid();
    }

    bool IsNumber(qsizetype index) const { return m_parts[index].kind == Part::Kind::Number; }
    int Number(qsizetype index) const { return index < m_numbers.size() ? m_numbers[index] : 0; }

    Parts& m_parts;
    QStringView m_half;
    QList<int> m_numbers;
    int m_hour = 0;
};

int FullYear(const Part& year)
{
    if (year.digits > 2)
        return year.number;
    return year.number < 30 ? 2000 + year.number : 1900 + year.number;
}

QDate MonthFirstElseDayFirst(int year, int first, int second)
{
    const QDate date(year, first, second);
    return date.isValid() ? date : QDate(year, second, first);
}

QDate NumericDate(const Parts& parts)
{
    if (parts.size() == 2)
        return MonthFirstElseDayFirst(Now().date().year(), parts[0].number, parts[1].number);
    if (parts.size() != 3)
        return {};
    if (parts[0].digits > 2)
        return {parts[0].number, parts[1].number, parts[2].number};
    return MonthFirstElseDayFirst(FullYear(parts[2]), parts[0].number, parts[1].number);
}

/// `d mmm yyyy`, `mmm d yyyy`, `yyyy mmm d`, `d mmm` of this year and `mmm yyyy`.
QDate NamedDate(const Parts& parts, int month)
{
    Parts numbers;
    for (const Part& part : parts) {
        if (part.kind == Part::Kind::Number)
            numbers.append(part);
    }
    if (numbers.size() == 1) {
        const bool isYear = numbers[0].digits > 2;
        return isYear ? QDate(numbers[0].number, month, 1) : QDate(Now().date().year(), month, numbers[0].number);
    }
    if (numbers.size() != 2)
        return {};
    if (numbers[0].digits > 2)
        return {numbers[0].number, month, numbers[1].number};
    return {FullYear(numbers[1]), month, numbers[0].number};
}

QDate DateOf(const Parts& parts)
{
    int month = 0;
    for (const Part& part : parts) {
        if (part.kind == Part::Kind::Colon)
            return {};
        if (part.kind != Part::Kind::Word)
            continue;
        if (month != 0)
            return {};
        month = MonthOf(part.word);
        if (month == 0)
            return {};
    }
    return month == 0 ? NumericDate(parts) : NamedDate(parts, month);
}

} // namespace

std::optional<std::string> ReadDateLiteral(QStringView text)
{
    std::optional<Parts> parts = Split(text);
    if (!parts)
        return std::nullopt;
    TimeReader time(*parts);
    if (!time.Read() || (parts->isEmpty() && !time.HasTime()))
        return std::nullopt;
    // A time behind a blank is what is left of a date and time whose date was empty.
    if (parts->isEmpty() && text.front().isSpace())
        return std::nullopt;
    const QDate date = parts->isEmpty() ? QDate(1899, 12, 30) : DateOf(*parts);
    if (!date.isValid() || date.year() < 100 || date.year() > 9999)
        return std::nullopt;
    const QTime clock = time.HasTime() ? time.Time() : QTime(0, 0);
    return (date.toString(Qt::ISODate) + u' ' + clock.toString(Qt::ISODate)).toStdString();
}
