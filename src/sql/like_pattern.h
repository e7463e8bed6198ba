#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

/// A LIKE criterion: `%` any characters, `_` one, `[a-z]` one of, `[!a-z]` none of, without regard to case.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    bool Matches(std::string_view text) const;

private:
    struct Element {
        enum class Kind { Character, AnyCharacter, AnyText, Set };
        Kind kind = Kind::Character;
        char16_t character = 0;
        bool negated = false;
        QString members; ///< pairs of first and last
    };

    void ReadElements(const QString& pattern);
    qsizetype ReadSet(const QString& pattern, qsizetype open);
    bool Accepts(const Element& element, char16_t c) const;
    bool MatchesElements(const QString& text) const;

    std::string m_needle; ///< of `%text%` in the plain alphabet, in lower case
    bool m_isNeedle = false;
    std::vector<Element> m_elements;
};
