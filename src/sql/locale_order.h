#pragma once

#include <QCollator>

#include <array>
#include <string_view>

/// The order of texts in lists: that of the user's locale without regard to case. Hyphens and apostrophes count only
/// between texts that are otherwise equal, so that "co-op" stands next to "coop".
class LocaleOrder {
public:
    explicit LocaleOrder(const QLocale& locale);
    /// Below, at or above 0, of two texts in UTF-8.
    int Compare(std::string_view left, std::string_view right) const;

private:
    void RankPlainCharacters();
    bool RanksAgreeWithCollator() const;
    int CompareByRank(std::string_view left, std::string_view right) const;
    int CompareByCollator(std::string_view left, std::string_view right) const;

    QCollator m_collator;
    /// Of the characters up to 127, where the locale orders plain texts character by character; 0 for ignored ones.
    std::array<unsigned char, 128> m_ranks{};
    bool m_plainByRank = false;
};
