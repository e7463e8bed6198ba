#include "fuzzing.h"

#include "sql/like_pattern.h"

#include <vector>

/// LIKE against a matcher that tries every way, slowly: the pattern is the first line, the text the rest.

namespace {

/// Both texts are folded.
class SlowMatcher {
public:
    SlowMatcher(const QString& pattern, const QString& text)
        : m_pattern(pattern)
        , m_text(text)
        , m_known(size_t((pattern.size() + 1) * (text.size() + 1)), Unknown)
    {
    }

    bool Matches() { return Matches(0, 0); }

private:
    enum Answer : char { Unknown, Yes, No };

    bool Matches(qsizetype element, qsizetype at)
    {
        Answer& known = m_known[size_t(element * (m_text.size() + 1) + at)];
        if (known == Unknown)
            known = Try(element, at) ? Yes : No;
        return known == Yes;
    }

    bool Try(qsizetype element, qsizetype at)
    {
        if (element == m_pattern.size())
            return at == m_text.size();
        const QChar c = m_pattern.at(element);
        const bool atCharacter = at < m_text.size();
        if (c == u'%')
            return Matches(element + 1, at) || (atCharacter && Matches(element, at + 1));
        const qsizetype close = c == u'[' ? m_pattern.indexOf(u']', element) : -1;
        if (close < 0)
            return atCharacter && (c == u'_' || c == m_text.at(at)) && Matches(element + 1, at + 1);
        const QStringView set = QStringView(m_pattern).mid(element + 1, close - element - 1);
        if (set.isEmpty())
            return Matches(close + 1, at);
        return atCharacter && IsIn(set, m_text.at(at)) && Matches(close + 1, at + 1);
    }

    static bool IsIn(QStringView set, QChar c)
    {
        if (set.size() > 1 && (set.front() == u'!' || set.front() == u'^'))
            return !IsAmong(set.sliced(1), c);
        return IsAmong(set, c);
    }

    static bool IsAmong(QStringView set, QChar c)
    {
        if (set.isEmpty())
            return false;
        if (set.size() > 2 && set.at(1) == u'-')
            return (c >= set.at(0) && c <= set.at(2)) || IsAmong(set.sliced(3), c);
        return c == set.front() || IsAmong(set.sliced(1), c);
    }

    const QString& m_pattern;
    const QString& m_text;
    std::vector<Answer> m_known;
};

} // namespace

void Fuzz(FuzzInput input)
{
    constexpr qsizetype LongestPattern = 60;
    constexpr qsizetype LongestText = 200;
    const QString pattern = AnyText(input.Line(), LongestPattern);
    const QString text = AnyText(input.Rest(), LongestText);
    const std::string patternBytes = Utf8Of(pattern);
    const std::string textBytes = Utf8Of(text);
    const QString foldedPattern = QString::fromStdString(patternBytes).toCaseFolded();
    const QString foldedText = QString::fromStdString(textBytes).toCaseFolded();
    Expect(LikePattern(patternBytes).Matches(textBytes) == SlowMatcher(foldedPattern, foldedText).Matches(),
        "a text matches where trying every way finds that it does");
}
