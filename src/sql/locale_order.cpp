#include "sql/locale_order.h"

#include <QLocale>

#include <algorithm>
#include <new>

#include <unicode/ucol.h>

namespace {

/// Longer texts take the long way.
constexpr size_t LongestPlain = 200;
/// Ends the weights of the letters in a key, with those of their accents behind it or none.
constexpr std::string_view LevelEnds("\x01\0", 2);

bool IsIgnored(QChar c)
{
    return c == u'-' || c == u'\'';
}

QString WithoutIgnored(std::string_view text)
{
    QString rest = QString::fromUtf8(text.data(), qsizetype(text.size()));
    return rest.removeIf(IsIgnored);
}

UCollator* OpenCollator(const QLocale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open(locale.bcp47Name().replace(u'-', u'_').toLatin1().constData(), &status);
    ucol_setAttribute(collator, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    // Blanks and signs count in every language. Accents do, too, but case does not.
    ucol_setAttribute(collator, UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
    ucol_setAttribute(collator, UCOL_STRENGTH, UCOL_SECONDARY, &status);
    if (U_SUCCESS(status))
        return collator;
    ucol_close(collator);
    throw std::bad_alloc();
}

/// In the order in which they are wanted: where two do not go together the first one stays.
std::vector<char> PlainCharacters()
{
    std::vector<char> characters;
    for (char c = ' '; c <= '~'; ++c) {
        if (!IsIgnored(QLatin1Char(c)))
            characters.push_back(c);
    }
    std::stable_partition(
        characters.begin(), characters.end(), [](char c) { return c == ' ' || QChar::isLetterOrNumber(char32_t(c)); });
    return characters;
}

} // namespace

LocaleOrder::LocaleOrder(const QLocale& locale)
    : m_collator(OpenCollator(locale), ucol_close)
{
    LearnPlainWeights();
}

LocaleOrder::~LocaleOrder() = default;

/// Most texts hold plain characters only. Their keys are put together from a table, many times faster than by the
/// locale's rules. Some languages sort pairs of letters as one, such as "ch": such letters have no place in it.
void LocaleOrder::LearnPlainWeights()
{
    QString digits;
    for (size_t length = 0; length <= LongestPlain; ++length, digits += u'0') {
        const std::string key = CollatorKey(digits);
        m_ends.push_back(key.substr(key.find_first_of(LevelEnds)));
    }
    std::vector<char> independent;
    for (const char character : PlainCharacters()) {
        const std::string key = CollatorKey(QString(QLatin1Char(character)));
        const size_t size = key.find_first_of(LevelEnds);
        Weight& weight = m_weights[static_cast<unsigned char>(character)];
        if (size == 0 || size > weight.bytes.size() || key.substr(size) != m_ends[1])
            continue;
        std::copy_n(key.begin(), size, weight.bytes.begin());
        weight.size = static_cast<unsigned char>(size);
        independent.push_back(character);
        if (!IsIndependent(character, independent)) {
            weight.size = 0;
            independent.pop_back();
        }
    }
}

/// True when the character adds the same before and behind each of them.
bool LocaleOrder::IsIndependent(char character, const std::vector<char>& others)
{
    std::string inTurn;
    for (const char other : others)
        inTurn.append(1, character).append(1, other);
    m_key.clear();
    return AppendPlainKey(inTurn) && m_key == CollatorKey(QString::fromLatin1(inTurn));
}

bool LocaleOrder::AppendPlainKey(std::string_view text)
{
    if (text.size() > LongestPlain)
        return false;
    size_t count = 0;
    for (const char c : text) {
        if (IsIgnored(QLatin1Char(c)))
            continue;
        const auto code = static_cast<unsigned char>(c);
        if (code >= m_weights.size() || m_weights[code].size == 0)
            return false;
        const Weight& weight = m_weights[code];
        m_key.append(weight.bytes.data(), weight.size);
        ++count;
    }
    m_key += m_ends[count];
    return true;
}

std::string LocaleOrder::CollatorKey(QStringView text) const
{
    // A text without any character comes before one of characters that do not count.
    if (text.isEmpty())
        return std::string(1, '\0');
    std::string key(size_t(2 * text.size()) + 16, '\0');
    const auto write = [&] {
        return size_t(ucol_getSortKey(m_collator.get(), text.utf16(), int32_t(text.size()),
            reinterpret_cast<uint8_t*>(key.data()), int32_t(key.size())));
    };
    const size_t size = write();
    const bool fits = size <= key.size();
    key.resize(size);
    if (!fits)
        write();
    return key;
}

std::string_view LocaleOrder::Key(std::string_view text)
{
    m_key.clear();
    if (!AppendPlainKey(text))
        m_key = CollatorKey(WithoutIgnored(text));
    const auto ignored = std::count_if(text.begin(), text.end(), [](char c) { return IsIgnored(QLatin1Char(c)); });
    if (ignored > 0)
        for (int shift = 24; shift >= 0; shift -= 8)
            m_key.push_back(char(ignored >> shift));
    return m_key;
}

int LocaleOrder::Compare(std::string_view left, std::string_view right)
{
    const std::string leftKey(Key(left));
    return leftKey.compare(Key(right));
}
