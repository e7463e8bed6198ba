#include "sql/like_pattern.h"

#include <algorithm>
#include <array>

namespace {

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c | 32) : c;
}

bool IsPlain(char c)
{
    return c > 0 && c != '%' && c != '_' && c != '[' && c != ']';
}

bool StartsWith(std::string_view text, size_t at, std::string_view lowerNeedle)
{
    for (size_t i = 1; i < lowerNeedle.size(); ++i) {
        if (Lower(text[at + i]) != lowerNeedle[i])
            return false;
    }
    return true;
}

/// The needle is in lower case. Bytes of the plain alphabet never stand inside another character of UTF-8.
bool ContainsFolded(std::string_view text, std::string_view lowerNeedle)
{
    if (lowerNeedle.empty())
        return true;
    if (text.size() < lowerNeedle.size())
        return false;
    const char first = lowerNeedle.front();
    for (size_t at = 0, last = text.size() - lowerNeedle.size(); at <= last; ++at) {
        if (Lower(text[at]) == first && StartsWith(text, at, lowerNeedle))
            return true;
    }
    return false;
}

/// True where letters outside the plain alphabet fold to plain ones, as "ß" does to "ss" and the Kelvin sign to "k".
bool FoldsToPlainLetters(std::string_view text)
{
    unsigned bits = 0;
    for (const char c : text)
        bits |= static_cast<unsigned char>(c);
    if ((bits & 0x80) == 0)
        return false;
    static constexpr std::array beginnings{
        "\u00DF", "\u0130", "\u0149", "\u017F", "\u01F0", "\xE1\xBA", "\u212A", "\xEF\xAC"};
    return std::any_of(beginnings.begin(), beginnings.end(),
        [text](const char* beginning) { return text.find(beginning) != std::string_view::npos; });
}

QString Decode(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size())).toCaseFolded();
}

} // namespace

LikePattern::LikePattern(std::string_view pattern)
{
    const bool framed = pattern.size() >= 2 && pattern.front() == '%' && pattern.back() == '%';
    if (framed) {
        const std::string_view inner = pattern.substr(1, pattern.size() - 2);
        m_isNeedle = std::all_of(inner.begin(), inner.end(), IsPlain);
        if (m_isNeedle)
            std::transform(inner.begin(), inner.end(), std::back_inserter(m_needle), Lower);
    }
    ReadElements(Decode(pattern));
}

bool LikePattern::Matches(std::string_view text) const
{
    if (!m_isNeedle)
        return MatchesElements(Decode(text));
    return ContainsFolded(text, m_needle) || (FoldsToPlainLetters(text) && MatchesElements(Decode(text)));
}

void LikePattern::ReadElements(const QString& pattern)
{
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const char16_t c = pattern[at].unicode();
        if (c == u'[') {
            at = ReadSet(pattern, at);
            continue;
        }
        Element element;
        if (c == u'%')
            element.kind = Element::Kind::AnyText;
        else if (c == u'_')
            element.kind = Element::Kind::AnyCharacter;
        element.character = c;
        const bool again = c == u'%' && !m_elements.empty() && m_elements.back().kind == Element::Kind::AnyText;
        if (!again)
            m_elements.push_back(element);
    }
}

/// Returns the place of the closing bracket. A bracket that never closes stands for itself, an empty pair for nothing.
qsizetype LikePattern::ReadSet(const QString& pattern, qsizetype open)
{
    const qsizetype close = pattern.indexOf(u']', open + 1);
    Element element;
    element.character = u'[';
    if (close < 0) {
        m_elements.push_back(element);
        return open;
    }
    element.kind = Element::Kind::Set;
    qsizetype at = open + 1;
    element.negated = at + 1 < close && (pattern[at] == u'!' || pattern[at] == u'^');
    if (element.negated)
        ++at;
    while (at < close) {
        const bool range = at + 2 < close && pattern[at + 1] == u'-';
        element.members += pattern[at];
        element.members += pattern[range ? at + 2 : at];
        at += range ? 3 : 1;
    }
    if (!element.members.isEmpty())
        m_elements.push_back(element);
    return close;
}

bool LikePattern::Accepts(const Element& element, char16_t c) const
{
    if (element.kind == Element::Kind::AnyCharacter)
        return true;
    if (element.kind == Element::Kind::Character)
        return element.character == c;
    for (qsizetype i = 0; i < element.members.size(); i += 2) {
        if (c >= element.members[i].unicode() && c <= element.members[i + 1].unicode())
            return !element.negated;
    }
    return element.negated;
}

/// Goes back to the last `%` only: what stood before it has found its earliest place already.
bool LikePattern::MatchesElements(const QString& text) const
{
    size_t element = 0;
    size_t afterAny = 0;
    qsizetype at = 0;
    qsizetype retry = -1;
    while (at < text.size()) {
        if (element < m_elements.size() && m_elements[element].kind == Element::Kind::AnyText) {
            afterAny = ++element;
            retry = at;
        } else if (element < m_elements.size() && Accepts(m_elements[element], text[at].unicode())) {
            ++element;
            ++at;
        } else if (retry >= 0) {
            element = afterAny;
            at = ++retry;
        } else {
            return false;
        }
    }
    while (element < m_elements.size() && m_elements[element].kind == Element::Kind::AnyText)
        ++element;
    return element == m_elements.size();
}
