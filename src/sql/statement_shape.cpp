#include "sql/statement_shape.h"

#include "base/regional_formats.h"
#include "sql/date_literal.h"
#include "sql/statement_errors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>

namespace {

constexpr int GroupOfDigits = 3;

constexpr bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool IsBlank(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

/// For each ASCII character whether a word may hold it: most of a statement is words.
constexpr std::array<bool, 128> AsciiOfWords = [] {
    std::array<bool, 128> ofWords{};
    for (size_t c = 0; c < ofWords.size(); ++c)
        ofWords[c] = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || IsDigit(char16_t(c));
    return ofWords;
}();

bool IsWord(char16_t c)
{
    return c >= AsciiOfWords.size() || AsciiOfWords[c];
}

/// Bytes that one UTF-16 unit takes at most.
constexpr size_t MostUtf8 = 3;

/// Writes a character beyond ASCII as UTF-8 and moves behind it; half a surrogate pair becomes U+FFFD.
void WriteLongUtf8(char*& out, const char16_t*& at, const char16_t* end)
{
    char32_t c = *at++;
    if (c >= 0xD800 && c <= 0xDFFF) {
        const bool paired = c < 0xDC00 && at < end && *at >= 0xDC00 && *at <= 0xDFFF;
        c = paired ? 0x10000 + ((c - 0xD800) << 10) + (*at++ - 0xDC00) : U'\xFFFD';
    }
    if (c < 0x800) {
        *out++ = char(0xC0 | (c >> 6));
    } else if (c < 0x10000) {
        *out++ = char(0xE0 | (c >> 12));
        *out++ = char(0x80 | ((c >> 6) & 0x3F));
    } else {
        *out++ = char(0xF0 | (c >> 18));
        *out++ = char(0x80 | ((c >> 12) & 0x3F));
        *out++ = char(0x80 | ((c >> 6) & 0x3F));
    }
    *out++ = char(0x80 | (c & 0x3F));
}

/// As above for any character; nearly all are plain.
inline void WriteUtf8(char*& out, const char16_t*& at, const char16_t* end)
{
    if (*at >= 0x80)
        WriteLongUtf8(out, at, end);
    else
        *out++ = char(*at++);
}

class Reader {
public:
    static constexpr size_t UsualLiterals = 4;

    Reader(const QString& statement, StatementShape& shape)
        : m_statement(statement)
        , m_begin(reinterpret_cast<const char16_t*>(statement.utf16()))
        , m_at(m_begin)
        , m_end(m_begin + statement.size())
        , m_shape(shape)
        , m_numbersHaveOwnSign(Formats().decimal.size() == 1 && Formats().decimal != QLatin1Char('.'))
    {
        // No literal is shorter than its mark: the room is taken once, and cut when the shape is known.
        m_shape.text.resize(MostUtf8 * size_t(statement.size()));
        m_out = m_shape.text.data();
        m_shape.literals.clear();
        // A cursor takes the literals with it: one piece of memory for them instead of one after the other.
        m_shape.literals.reserve(UsualLiterals);
    }

    void Read()
    {
        while (m_at < m_end)
            ReadToken(*m_at);
        m_shape.text.resize(Written().size());
    }

private:
    void ReadToken(char16_t c)
    {
        if (IsBlank(c)) {
            *m_out++ = ' ';
            ++m_at;
        } else if (m_inAssignments && m_numbersHaveOwnSign && AtAssignedValue(c) && SkipNumberAsTyped()) {
            AddNumberAsTyped();
        } else if (IsDigit(c) || (c == u'.' && m_at + 1 < m_end && IsDigit(m_at[1]))) {
            ReadNumber();
        } else if (IsWord(c)) {
            ReadWord();
        } else {
            ReadSign(c);
        }
    }

    void ReadSign(char16_t c)
    {
        switch (c) {
        case u'\'':
        case u'"':
            return ReadText(c);
        case u'#':
            return ReadDate();
        case u'[':
            return ReadBrackets();
        case u';':
            return ReadEnd();
        case u'(':
        case u')':
            m_brackets += c == u'(' ? 1 : -1;
            [[fallthrough]];
        case u',':
        case u'.':
        case u'=':
        case u'<':
        case u'>':
        case u'+':
        case u'-':
        case u'*':
        case u'/':
        case u'&':
            *m_out++ = char(c);
            ++m_at;
            return;
        default:
            throw MissingOperatorError(Expression(m_at));
        }
    }

    void ReadWord()
    {
        const char16_t* at = m_at;
        char* out = m_out;
        while (at < m_end && IsWord(*at))
            WriteUtf8(out, at, m_end);
        const QStringView word(m_at, at);
        m_at = at;
        m_out = out;
        m_afterTop = IsKeyword(word, u"top");
        if (m_isFirstWord)
            m_isUpdate = IsKeyword(word, u"update");
        else if (m_isUpdate)
            m_inAssignments = (m_inAssignments || IsKeyword(word, u"set")) && !IsKeyword(word, u"where");
        m_isFirstWord = false;
    }

    static bool IsKeyword(QStringView word, QStringView keyword)
    {
        return word.size() == keyword.size() && word.compare(keyword, Qt::CaseInsensitive) == 0;
    }

    /// True where a value of a SET list begins, which is no place for a comma between two values.
    bool AtAssignedValue(char16_t c) const
    {
        if (m_brackets != 0 || !(IsDigit(c) || Formats().decimal == QChar(c)))
            return false;
        const std::string_view text = Written();
        const size_t last = text.find_last_not_of(' ');
        return last != std::string_view::npos && std::strchr("=<>+-*/&", text[last]) != nullptr;
    }

    /// Moves behind a number with the user's decimal sign where that is no point: "7,5", ",5", "1.234,5". Behind a
    /// comma in a SET list only an assignment can stand, so that it means nothing else. Its digits go to m_digits.
    bool SkipNumberAsTyped()
    {
        const RegionalFormats& formats = Formats();
        const char16_t* at = m_at;
        m_digits.clear();
        const auto digits = [&] {
            const char16_t* first = at;
            for (; at < m_end && IsDigit(*at); ++at)
                m_digits.push_back(char(*at));
            return at - first;
        };
        if (digits() > 0)
            while (at < m_end && formats.group == QChar(*at) && !IsBlank(*at) && at + 1 < m_end && IsDigit(at[1]))
                if (++at; digits() != GroupOfDigits)
                    return false;
        if (at == m_end || formats.decimal != QChar(*at))
            return false;
        ++at;
        m_digits.push_back('.');
        if (digits() == 0)
            return false;
        m_at = at;
        return true;
    }

    void AddNumberAsTyped()
    {
        const char16_t* behindDigits = m_at;
        if (SkipExponent())
            m_digits.append(behindDigits, m_at);
        AddDigits(false);
    }

    void ReadNumber()
    {
        const char16_t* start = m_at;
        bool whole = true;
        SkipDigits();
        if (m_at < m_end && *m_at == u'.') {
            ++m_at;
            SkipDigits();
            whole = false;
        }
        whole = !SkipExponent() && whole;
        AddNumber(start, whole);
    }

    void SkipDigits()
    {
        while (m_at < m_end && IsDigit(*m_at))
            ++m_at;
    }

    bool SkipExponent()
    {
        const char16_t* at = m_at;
        if (at == m_end || (*at | 32) != u'e')
            return false;
        ++at;
        if (at < m_end && (*at == u'+' || *at == u'-'))
            ++at;
        if (at == m_end || !IsDigit(*at))
            return false;
        m_at = at;
        SkipDigits();
        return true;
    }

    void AddNumber(const char16_t* start, bool whole)
    {
        m_digits.assign(start, m_at);
        AddDigits(whole);
    }

    void AddDigits(bool whole)
    {
        const char* first = m_digits.data();
        const char* last = first + m_digits.size();
        if (m_afterTop) {
            m_afterTop = false;
            m_out = std::copy(m_digits.begin(), m_digits.end(), m_out);
            return;
        }
        qint64 number = 0;
        if (whole && std::from_chars(first, last, number).ec == std::errc())
            return Add(LiteralMark::Whole, number);
        double fraction = 0;
        if (std::from_chars(first, last, fraction).ec != std::errc() && m_digits.find('-') == std::string::npos)
            throw NumericOverflowError();
        Add(LiteralMark::Fraction, fraction);
    }

    void ReadText(char16_t quote)
    {
        const char16_t* start = m_at++;
        // Nothing is written of the shape until the text ends, so that its room serves the text.
        char* end = m_out;
        bool ascii = true;
        for (;; WriteUtf8(end, m_at, m_end)) {
            if (m_at == m_end)
                throw OpenText(start);
            if (*m_at == quote && (++m_at == m_end || *m_at != quote))
                break;
            ascii = ascii && *m_at < 128;
        }
        Add(ascii ? LiteralMark::AsciiText : LiteralMark::OtherText, std::string(m_out, end));
    }

    void ReadDate()
    {
        const char16_t* start = m_at++;
        while (m_at < m_end && *m_at != u'#')
            ++m_at;
        const QStringView inner(start + 1, m_at);
        const std::optional<std::string> iso = m_at < m_end ? ReadDateLiteral(inner) : std::nullopt;
        if (!iso)
            throw DateLiteralError(Expression(start));
        ++m_at;
        Add(LiteralMark::Date, DateLiteral{*iso});
    }

    void ReadBrackets()
    {
        const char16_t* start = m_at;
        do {
            WriteUtf8(m_out, m_at, m_end);
            if (m_at == m_end || *m_at < u' ' || *m_at == u'[')
                throw MissingOperatorError(Expression(start));
        } while (*m_at != u']');
        *m_out++ = ']';
        ++m_at;
    }

    void ReadEnd()
    {
        while (++m_at < m_end) {
            if (!IsBlank(*m_at))
                throw SyntaxError(QStringLiteral("Characters found after end of SQL statement."));
        }
    }

    template <typename Value>
    void Add(LiteralMark mark, Value&& value)
    {
        *m_out++ = char(mark);
        m_shape.literals.emplace_back(std::forward<Value>(value));
    }

    /// A quote that never closes: the end of a text with a quote of its own, when a name follows the text before it.
    RuntimeError OpenText(const char16_t* start) const
    {
        const std::string_view text = Written();
        size_t word = text.size();
        while (word > 0 && (IsWord(char16_t(uchar(text[word - 1]))) || text[word - 1] == ' '))
            --word;
        const bool afterText = word > 0 && word < text.size()
            && (text[word - 1] == char(LiteralMark::AsciiText) || text[word - 1] == char(LiteralMark::OtherText));
        return afterText ? MissingOperatorError(Expression(start)) : OpenTextError(Expression(start));
    }

    /// The expression around a place, from the word that opens its clause on.
    QStringView Expression(const char16_t* place) const
    {
        const QStringView statement(m_statement);
        const QStringView before = statement.left(place - m_begin);
        qsizetype start = 0;
        for (const QLatin1StringView opening : {QLatin1StringView(" where "), QLatin1StringView(" set "),
                 QLatin1StringView(" having "), QLatin1StringView(" by "), QLatin1StringView("select ")}) {
            const qsizetype found = before.lastIndexOf(opening, -1, Qt::CaseInsensitive);
            if (found >= 0)
                start = std::max(start, found + opening.size());
        }
        return statement.mid(start);
    }

    std::string_view Written() const { return {m_shape.text.data(), m_out}; }

    const QString& m_statement;
    const char16_t* m_begin;
    const char16_t* m_at;
    const char16_t* m_end;
    StatementShape& m_shape;
    char* m_out; ///< behind what is written of its text
    std::string m_digits;
    bool m_numbersHaveOwnSign; ///< the user's decimal sign is no point
    bool m_afterTop = false;
    bool m_isFirstWord = true;
    bool m_isUpdate = false;
    bool m_inAssignments = false;
    int m_brackets = 0;
};

} // namespace

void ReadStatement(const QString& statement, StatementShape& shape)
{
    Reader(statement, shape).Read();
}
