#include "base/clock.h"
#include "base/dates.h"
#include "base/regional_formats.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

/// No date is written longer than this in any locale.
constexpr qsizetype LongestDate = 100;

/// A number, a word or a separator of the text.
struct Piece {
    enum class Kind { Number, Month, Am, Pm, DateSeparator, TimeSeparator, Blank };
    Kind kind;
    int value = 0; ///< of a number or month
    int digits = 0;
};
using Pieces = QVarLengthArray<Piece, 24>;

bool SameWord(QStringView word, const QString& name)
{
    return !name.isEmpty() && word.compare(name, Qt::CaseInsensitive) == 0;
}

/// 1 to 12 for the name of a month, in English or the user's language, whole or abbreviated; 0 for no month.
int MonthOf(QStringView word)
{
    static const QLocale English(QLocale::English, QLocale::UnitedStates);
    for (const QLocale& locale : {Formats().locale, English})
        for (int month = 1; month <= 12; ++month) {
            QString abbreviation = locale.monthName(month, QLocale::ShortFormat);
            if (abbreviation.endsWith(QLatin1Char('.')))
                abbreviation.chop(1);
            if (SameWord(word, locale.monthName(month, QLocale::LongFormat)) || SameWord(word, abbreviation)
                || SameWord(word, locale.standaloneMonthName(month, QLocale::LongFormat)))
                return month;
        }
    return SameWord(word, QStringLiteral("Sept")) ? 9 : 0;
}

/// Cuts a text into its pieces; false when something in it belongs to no date.
class Cutter {
public:
    Cutter(QStringView text, Pieces& pieces)
        : m_text(text)
        , m_pieces(pieces)
    {
    }

    bool Cut()
    {
        while (m_at < m_text.size())
            if (!CutNumber() && !CutWord() && !CutSeparator())
                return false;
        return true;
    }

private:
    bool CutNumber()
    {
        Piece piece{Piece::Kind::Number};
        int length = 0;
        for (int digit = 0;
             m_at < m_text.size() && (digit = Formats().DigitAt(m_text, m_at, length)) >= 0 && piece.digits < 5;
             m_at += length, ++piece.digits)
            piece.value = piece.value * 10 + digit;
        if (piece.digits > 0)
            m_pieces.append(piece);
        return piece.digits > 0;
    }

    bool CutWord()
    {
        qsizetype end = m_at;
        while (end < m_text.size() && (m_text.at(end).isLetter() || m_text.at(end).isMark()))
            ++end;
        const QStringView word = m_text.mid(m_at, end - m_at);
        if (word.isEmpty())
            return false;
        const QLocale& locale = Formats().locale;
        if (SameWord(word, QStringLiteral("am")) || SameWord(word, QStringLiteral("a"))
            || SameWord(word, locale.amText()))
            m_pieces.append({Piece::Kind::Am});
        else if (SameWord(word, QStringLiteral("pm")) || SameWord(word, QStringLiteral("p"))
            || SameWord(word, locale.pmText()))
            m_pieces.append({Piece::Kind::Pm});
        else if (const int month = MonthOf(word); month > 0)
            m_pieces.append({Piece::Kind::Month, month});
        else if (!Formats().shortDate.contains(
                     QLatin1Char('"') + word.toString())) // the year's own word in some locales
            return false;
        // The point of an abbreviation belongs to the word.
        m_at = end + (end < m_text.size() && m_text.at(end) == QLatin1Char('.'));
        return true;
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

    QStringView m_text;
    Pieces& m_pieces;
    qsizetype m_at = 0;
};

/// Takes the time of day out of the pieces. False when there is one that cannot be.
class TimeTaker {
public:
    explicit TimeTaker(Pieces& pieces)
        : m_pieces(pieces)
    {
    }

    bool Take(std::optional<QTime>& time)
    {
        qsizetype start = 0;
        while (start < m_pieces.size() && !StartsTime(start))
            ++start;
        if (start == m_pieces.size())
            return true;
        int parts[3] = {m_pieces[start].value, 0, 0};
        int count = 1;
        m_end = start + 1;
        while (Is(m_end, Piece::Kind::TimeSeparator) && Is(m_end + 1, Piece::Kind::Number)) {
            if (count == 3)
                return false;
            parts[count++] = m_pieces[m_end + 1].value;
            m_end += 2;
        }
        parts[0] = WithHalfOfDay(parts[0]);
        if (!QTime::isValid(parts[0], parts[1], parts[2]))
            return false;
        m_pieces.erase(m_pieces.begin() + start, m_pieces.begin() + m_end);
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

    bool StartsTime(qsizetype at) const
    {
        return Is(at, Piece::Kind::Number) && (Is(at + 1, Piece::Kind::TimeSeparator) || IsHalf(AfterBlanks(at + 1)));
    }

    /// The hour of the day, by the AM or PM behind it; past 12 that says nothing.
    int WithHalfOfDay(int hour)
    {
        const qsizetype half = AfterBlanks(m_end);
        if (!IsHalf(half))
            return hour;
        m_end = half + 1;
        if (hour > 12)
            return hour;
        return hour % 12 + (Is(half, Piece::Kind::Pm) ? 12 : 0);
    }

    Pieces& m_pieces;
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
    return date.isValid() && date.year() <= 9999 ? std::optional(date) : std::nullopt;
}

Piece ThisYear()
{
    return {Piece::Kind::Number, Now().date().year(), 4};
}

/// Three numbers, in the user's order or else in the first other one that gives a date.
std::optional<QDate> DateOfNumbers(const Piece& a, const Piece& b, const Piece& c)
{
    using Order = RegionalFormats::Order;
    const auto inOrder = [&](Order order) {
        switch (order) {
        case Order::MonthDayYear:
            return DateOf(c, a.value, b.value);
        case Order::DayMonthYear:
            return DateOf(c, b.value, a.value);
        case Order::YearMonthDay:
            break;
        }
        return DateOf(a, b.value, c.value);
    };
    for (const Order order : {Formats().order, Order::YearMonthDay, Order::MonthDayYear, Order::DayMonthYear})
        if (const auto date = inOrder(order))
            return date;
    return DateOf(a, c.value, b.value);
}

/// Two numbers: a day of this year, or a month and a year written in full.
std::optional<QDate> DateOfNumbers(const Piece& a, const Piece& b)
{
    if (a.digits > 2 || b.digits > 2)
        return a.digits > 2 ? DateOf(a, b.value, 1) : DateOf(b, a.value, 1);
    const bool dayFirst = Formats().order == RegionalFormats::Order::DayMonthYear;
    const auto first = DateOf(ThisYear(), dayFirst ? b.value : a.value, dayFirst ? a.value : b.value);
    return first ? first : DateOf(ThisYear(), dayFirst ? a.value : b.value, dayFirst ? b.value : a.value);
}

/// A month by name, with a day, a year, or both.
std::optional<QDate> DateOfMonth(int month, const QVarLengthArray<Piece, 4>& numbers)
{
    if (numbers.size() == 2) {
        const auto dayFirst = DateOf(numbers[1], month, numbers[0].value);
        return dayFirst ? dayFirst : DateOf(numbers[0], month, numbers[1].value);
    }
    const auto asDay = numbers[0].digits > 2 ? std::nullopt : DateOf(ThisYear(), month, numbers[0].value);
    return asDay ? asDay : DateOf(numbers[0], month, 1);
}

/// The date that the pieces left over from the time of day make.
std::optional<QDate> DateOfPieces(const Pieces& pieces)
{
    QVarLengthArray<Piece, 4> numbers;
    int month = 0;
    int separators = 0;
    for (const Piece& piece : pieces) {
        const bool isField = piece.kind == Piece::Kind::Number || piece.kind == Piece::Kind::Month;
        separators = isField ? 0 : separators + (piece.kind == Piece::Kind::DateSeparator);
        const bool fits = isField || piece.kind == Piece::Kind::Blank || piece.kind == Piece::Kind::DateSeparator;
        if (!fits || separators > 1 || (piece.kind == Piece::Kind::Month && month > 0) || numbers.size() > 3)
            return std::nullopt;
        if (piece.kind == Piece::Kind::Month)
            month = piece.value;
        else if (isField)
            numbers.append(piece);
    }
    if (month > 0)
        return numbers.size() == 1 || numbers.size() == 2 ? DateOfMonth(month, numbers) : std::nullopt;
    if (numbers.size() == 3)
        return DateOfNumbers(numbers[0], numbers[1], numbers[2]);
    return numbers.size() == 2 ? DateOfNumbers(numbers[0], numbers[1]) : std::nullopt;
}

bool HoldsOnlyBlanks(const Pieces& pieces)
{
    return std::all_of(
        pieces.begin(), pieces.end(), [](const Piece& piece) { return piece.kind == Piece::Kind::Blank; });
}

} // namespace

std::optional<QDateTime> ReadDate(const QString& text)
{
    Pieces pieces;
    if (text.size() > LongestDate || !Cutter(text, pieces).Cut())
        return std::nullopt;
    std::optional<QTime> time;
    if (!TimeTaker(pieces).Take(time))
        return std::nullopt;
    if (time && HoldsOnlyBlanks(pieces))
        return QDateTime(QDate(1899, 12, 30), *time);
    const auto date = DateOfPieces(pieces);
    if (!date)
        return std::nullopt;
    return QDateTime(*date, time.value_or(QTime(0, 0)));
}
