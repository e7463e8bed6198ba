#include "sql/locale_order.h"

#include <QLocale>
#include <QString>

#include <algorithm>
#include <vector>

namespace {

constexpr char FirstPrinting = ' ';
constexpr char LastPrinting = '~';

bool IsIgnored(QChar c)
{
    return c == u'-' || c == u'\'';
}

QString WithoutIgnored(const QString& text)
{
    QString rest = text;
    return rest.removeIf(IsIgnored);
}

QString Decode(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

int Sign(int difference)
{
    return (difference > 0) - (difference < 0);
}

} // namespace

LocaleOrder::LocaleOrder(const QLocale& locale)
    : m_collator(locale)
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    RankPlainCharacters();
    m_plainByRank = RanksAgreeWithCollator();
}

/// Most texts hold plain characters only. Their order is a table's, many times faster than the collator.
void LocaleOrder::RankPlainCharacters()
{
    std::vector<QString> characters;
    for (char c = FirstPrinting; c <= LastPrinting; ++c) {
        if (!IsIgnored(QLatin1Char(c)))
            characters.emplace_back(QLatin1Char(c));
    }
    std::stable_sort(characters.begin(), characters.end(),
        [this](const QString& a, const QString& b) { return m_collator.compare(a, b) < 0; });
    unsigned char rank = 1;
    for (size_t i = 0; i < characters.size(); ++i) {
        if (i > 0 && m_collator.compare(characters[i - 1], characters[i]) != 0)
            ++rank;
        m_ranks[characters[i][0].unicode()] = rank;
    }
}

/// Some languages sort pairs of letters as one, such as "ch", or a letter as a variant of another, which counts only
/// between words that are otherwise equal. There the collator does all the work.
bool LocaleOrder::RanksAgreeWithCollator() const
{
    const auto agree = [this](std::string_view left, std::string_view right) {
        return Sign(CompareByRank(left, right)) == Sign(CompareByCollator(left, right));
    };
    for (char first = FirstPrinting; first <= LastPrinting; ++first) {
        for (char second = FirstPrinting; second <= LastPrinting; ++second) {
            const char pair[] = {first, second};
            const char one[] = {second};
            if (!agree({pair, 2}, {one, 1}))
                return false;
        }
    }
    for (char first = 'a'; first <= 'z'; ++first) {
        for (char second = 'a'; second <= 'z'; ++second) {
            const char pair[] = {first, second};
            const char next[] = {first, 'z'};
            const char below[] = {first, 'a', 'z'};
            if (!agree({pair, 2}, {next, 2}) || !agree({pair, 2}, {below, 3}))
                return false;
        }
    }
    return true;
}

int LocaleOrder::CompareByRank(std::string_view left, std::string_view right) const
{
    const auto skip = [this](std::string_view text, size_t at) {
        while (at < text.size() && m_ranks[uchar(text[at])] == 0)
            ++at;
        return at;
    };
    size_t l = skip(left, 0);
    size_t r = skip(right, 0);
    while (l < left.size() && r < right.size()) {
        const int difference = m_ranks[uchar(left[l])] - m_ranks[uchar(right[r])];
        if (difference != 0)
            return difference;
        l = skip(left, l + 1);
        r = skip(right, r + 1);
    }
    const int longer = int(l < left.size()) - int(r < right.size());
    return longer;
}

int LocaleOrder::CompareByCollator(std::string_view left, std::string_view right) const
{
    return m_collator.compare(WithoutIgnored(Decode(left)), WithoutIgnored(Decode(right)));
}

int LocaleOrder::Compare(std::string_view left, std::string_view right) const
{
    const auto isPlain = [](char c) { return c >= FirstPrinting; };
    const bool plain = m_plainByRank && std::all_of(left.begin(), left.end(), isPlain)
        && std::all_of(right.begin(), right.end(), isPlain);
    const int order = plain ? CompareByRank(left, right) : CompareByCollator(left, right);
    if (order != 0)
        return order;
    const auto isHyphenOrApostrophe = [](char c) { return c == '-' || c == '\''; };
    const auto count = [&](std::string_view text) {
        return std::count_if(text.begin(), text.end(), isHyphenOrApostrophe);
    };
    return int(count(left) - count(right));
}
