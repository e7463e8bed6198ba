#include "base/date_reader.h"

#include "base/clock.h"
#include "base/date_words.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

/// No date is written longer than this in any locale.
constexpr qsizetype LongestDate = 100;
constexpr int LongestNumber = 4;

using Order = RegionalFormats::Order;

/// The day on which the count of days starts: a time of day alone has it as its date.
const QDate DayZero(1899, 12, 30);

/// A number, a word or a separator of the text.
struct Piece {
    enum class Kind { Number, Month, Am, Pm, DateSeparator, TimeSeparator, Blank };
    Kind kind;
    int value = 0; ///< of a number or month
    int digits = 0;
};
using Pieces = QVarLengthArray<Piece, 24>;

/// Cuts a text into its pieces; false when something in it belongs to no date.
class Cutter {
public:
    Cutter(QStringView text, Pieces& pieces)
        : m_text(DateWords::Fold(text))
        , m_pieces(pieces)
    {
    }

    bool Cut()
    {
        while (m_at < m_text.size())
            if (!CutWord() && !CutNumber() && !CutSeparator())
                return false;
        return true;
    }

private:
    bool CutNumber()
    {
        Piece piece{Piece::Kind::Number};
        int length = 0;
        for (int digit = 0; m_at < m_text.size() && (digit = Formats().DigitAt(m_text, m_at, length)) >= 0;
             m_at += length, ++piece.digits) {
            if (piece.digits == LongestNumber)
                return false;
            piece.value = piece.value * 10 + digit;
        }
        if (piece.digits > 0)
            m_pieces.append(piece);
        return piece.digits > 0;
    }

    bool CutWord()
    {
        const auto word = WordsOfDates().At(m_text, m_at);
        if (!word)
            return false;
        m_pieces.append({KindOf(word->kind), word->month});
        m_at += word->length;
        // The point of an abbreviation belongs to the word.
        m_at += m_at < m_text.size() && m_text.at(m_at) == QLatin1Char('.');
        return true;
    }

    static Piece::Kind KindOf(DateWords::Kind word)
    {
        switch (word) {
        case DateWords::Kind::Month:
            return Piece::Kind::Month;
        case DateWords::Kind::Am:
            return Piece::Kind::Am;
        case DateWords::Kind::Pm:
            return Piece::Kind::Pm;
        case DateWords::Kind::Filling:
            break;
        }
        return Piece::Kind::Blank;
    }

    bool CutSeparator()
    {
        const QChar character = m_text.at(m_at++);
        const RegionalFormats& formats = Formats();
        if (IsBlank(character))
            m_pieces.append({Piece::Kind::Blank});
        else if (QStringLiteral("/-,").contains(character) || formats.dateSeparator == character)
            m_pieces.append({Piece::Kind::DateSeparator});
        else if (QStringLiteral(":.").contains(character) || formats.timeSeparator == character)
            m_pieces.append({Piece::Kind::TimeSeparator});
        else
            return false;
        return true;
    }

    const QString m_text;
    Pieces& m_pieces;
    qsizetype m_at = 0;
};

/// Takes the time of day out of the pieces. False when there is one that cannot be.
class TimeTaker {
public:
    TimeTaker(Pieces& pieces, DateStrictness strictness)
        : m_pieces(pieces)
        , m_isStrict(strictness == DateStrictness::AsInStatements)
    {
    }

    bool Take(std::optional<QTime>& time)
    {
        if (!FindStart())
            return true;
        int parts[3] = {m_pieces[m_start].value, 0, 0};
        int count = 1;
        m_end = m_start + 1;
        while (Is(m_end, Piece::Kind::TimeSeparator) && Is(m_end + 1, Piece::Kind::Number)) {
            if (count == 3)
                return false;
            parts[count++] = m_pieces[m_end + 1].value;
            m_end += 2;
        }
        if (const auto half = TakeHalf(); half && !SetHalf(parts[0], *half))
            return false;
        if (!QTime::isValid(parts[0], parts[1], parts[2]) || (m_isStrict && AfterBlanks(m_end) < m_pieces.size()))
            return false;
        m_pieces.erase(m_pieces.begin() + m_start, m_pieces.begin() + m_end);
        time = QTime(parts[0], parts[1], parts[2]);
        return true;
    }

private:
    bool Is(qsizetype at, Piece::Kind kind) const { return at < m_pieces.size() && m_pieces[at].kind == kind; }
    bool IsHalf(qsizetype at) const { return Is(at, Piece::Kind::Am) || Is(at, Piece::Kind::Pm); }

    qsizetype AfterBlanks(qsizetype at) const
    {
        while (Is(at, Piece::Kind::Blank))
            ++at;
        return at;
    }

    /// A number with a separator behind it, or else one with a half of the day behind it.
    bool FindStart()
    {
        const auto find = [this](auto starts) {
            m_start = 0;
            while (m_start < m_pieces.size() && !(Is(m_start, Piece::Kind::Number) && starts(m_start + 1)))
                ++m_start;
            return m_start < m_pieces.size();
        };
        return find([this](qsizetype next) { return Is(next, Piece::Kind::TimeSeparator); })
            || find([this](qsizetype next) { return IsHalf(AfterBlanks(next)); });
    }

    /// The half of the day behind the time, or in front of it, as some languages have it.
    std::optional<Piece::Kind> TakeHalf()
    {
        if (const qsizetype behind = AfterBlanks(m_end); IsHalf(behind)) {
            m_end = behind + 1;
            return m_pieces[behind].kind;
        }
        qsizetype before = m_start;
        while (before > 0 && Is(before - 1, Piece::Kind::Blank))
            --before;
        if (before == 0 || !IsHalf(before - 1))
            return std::nullopt;
        m_start = before - 1;
        return m_pieces[m_start].kind;
    }

    /// The hour of the day. For an hour that is past 12 the half says nothing.
    bool SetHalf(int& hour, Piece::Kind half) const
    {
        if (m_isStrict && (hour < 1 || hour > 12))
            return false;
        if (hour <= 12)
            hour = hour % 12 + (half == Piece::Kind::Pm ? 12 : 0);
        return true;
    }

    Pieces& m_pieces;
    bool m_isStrict;
    qsizetype m_start = 0;
    qsizetype m_end = 0;
};

int FullYear(const Piece& piece)
{
    if (piece.value >= 100)
        return piece.value;
    return piece.value + (piece.value < 30 ? 2000 : 1900);
}

std::optional<QDate> DateOf(const Piece& year, int month, int day)
{
    const QDate date(FullYear(year), month, day);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

Piece ThisYear()
{
    return {Piece::Kind::Number, Now().date().year(), 4};
}

/// Makes a date of the pieces that are left over from the time of day.
class DateMaker {
public:
    DateMaker(const Pieces& pieces, Order order, DateStrictness strictness)
        : m_pieces(pieces)
        , m_order(order)
        , m_isStrict(strictness == DateStrictness::AsInStatements)
    {
    }

    std::optional<QDate> Make()
    {
        if (!Sort())
            return std::nullopt;
        if (m_month > 0)
            return m_numbers.size() == 1 || m_numbers.size() == 2 ? OfMonth() : std::nullopt;
        if (m_numbers.size() == 3)
            return OfThree(m_numbers[0], m_numbers[1], m_numbers[2]);
        return m_numbers.size() == 2 ? OfTwo(m_numbers[0], m_numbers[1]) : std::nullopt;
    }

private:
    /// Numbers and the month, with at most one separator between two of them.
    bool Sort()
    {
        int separators = 0;
        for (const Piece& piece : m_pieces) {
            const bool isField = piece.kind == Piece::Kind::Number || piece.kind == Piece::Kind::Month;
            separators = isField ? 0 : separators + (piece.kind == Piece::Kind::DateSeparator);
            const bool fits = isField || piece.kind == Piece::Kind::Blank || piece.kind == Piece::Kind::DateSeparator;
            if (!fits || separators > 1 || (piece.kind == Piece::Kind::Month && m_month > 0) || m_numbers.size() > 3)
                return false;
            if (piece.kind == Piece::Kind::Month)
                m_month = piece.value;
            else if (isField)
                m_numbers.append(piece);
        }
        return true;
    }

    static std::optional<QDate> InOrder(Order order, const Piece& a, const Piece& b, const Piece& c)
    {
        switch (order) {
        case Order::MonthDayYear:
            return DateOf(c, a.value, b.value);
        case Order::DayMonthYear:
            return DateOf(c, b.value, a.value);
        case Order::YearMonthDay:
            break;
        }
        return DateOf(a, b.value, c.value);
    }

    std::optional<QDate> OfThree(const Piece& a, const Piece& b, const Piece& c) const
    {
        if (m_isStrict && a.digits > 2)
            return InOrder(Order::YearMonthDay, a, b, c);
        if (const auto date = InOrder(m_order, a, b, c))
            return date;
        for (const Order order : {Order::YearMonthDay, Order::MonthDayYear, Order::DayMonthYear})
            if (const auto date = InOrder(order, a, b, c); date && !(m_isStrict && order == Order::YearMonthDay))
                return date;
        return m_isStrict ? std::nullopt : DateOf(a, c.value, b.value);
    }

    /// A day of this year, or a month and a year written in full.
    std::optional<QDate> OfTwo(const Piece& a, const Piece& b) const
    {
        if (a.digits > 2 || b.digits > 2)
            return a.digits > 2 ? DateOf(a, b.value, 1) : DateOf(b, a.value, 1);
        const bool dayFirst = m_order == Order::DayMonthYear;
        const auto first = DateOf(ThisYear(), dayFirst ? b.value : a.value, dayFirst ? a.value : b.value);
        return first ? first : DateOf(ThisYear(), dayFirst ? a.value : b.value, dayFirst ? b.value : a.value);
    }

    /// A month by name, with a day, a year, or both.
    std::optional<QDate> OfMonth() const
    {
        const Piece& first = m_numbers[0];
        if (m_numbers.size() == 2) {
            const auto dayFirst = DateOf(m_numbers[1], m_month, first.value);
            return dayFirst || (m_isStrict && first.digits <= 2) ? dayFirst
                                                                 : DateOf(first, m_month, m_numbers[1].value);
        }
        const auto asDay = first.digits > 2 ? std::nullopt : DateOf(ThisYear(), m_month, first.value);
        return asDay || (m_isStrict && first.digits <= 2) ? asDay : DateOf(first, m_month, 1);
    }

    const Pieces& m_pieces;
    Order m_order;
    bool m_isStrict;
    QVarLengthArray<Piece, 4> m_numbers;
    int m_month = 0;
};

bool HoldsOnlyBlanks(const Pieces& pieces)
{
    return std::all_of(
        pieces.begin(), pieces.end(), [](const Piece& piece) { return piece.kind == Piece::Kind::Blank; });
}

} // namespace

std::optional<QDateTime> ReadDate(QStringView text, Order order, DateStrictness strictness)
{
    Pieces pieces;
    if (text.size() > LongestDate || !Cutter(text, pieces).Cut())
        return std::nullopt;
    std::optional<QTime> time;
    if (!TimeTaker(pieces, strictness).Take(time))
        return std::nullopt;
    if (time && HoldsOnlyBlanks(pieces)) {
        const bool dateIsMissing = strictness == DateStrictness::AsInStatements && IsBlank(text.front());
        return dateIsMissing ? std::nullopt : std::optional(MomentOf(DayZero, *time));
    }
    const auto date = DateMaker(pieces, order, strictness).Make();
    if (!date)
        return std::nullopt;
    return MomentOf(*date, time.value_or(QTime(0, 0)));
}
