#pragma once

#include <QString>

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QLocale;
struct UCollator;

/// The order of texts in lists: that of the user's locale without regard to case. Hyphens and apostrophes count only
/// between texts that are otherwise equal, so that "co-op" stands next to "coop".
class LocaleOrder {
public:
    /// Throws std::bad_alloc where the locale's rules cannot be had.
    explicit LocaleOrder(const QLocale& locale);
    ~LocaleOrder();
    LocaleOrder(const LocaleOrder&) = delete;
    LocaleOrder& operator=(const LocaleOrder&) = delete;

    /// Bytes whose plain order is that of their texts, so that a row's text is looked at once however often the row is
    /// compared. `text` is UTF-8. Valid until the next call; never empty.
    std::string_view Key(std::string_view text);
    /// Below, at or above 0, of two texts in UTF-8.
    int Compare(std::string_view left, std::string_view right);

private:
    /// What a character adds to the key of its text wherever it stands.
    struct Weight {
        std::array<char, 4> bytes;
        unsigned char size = 0; ///< 0 for a character whose weight depends on its neighbours
    };

    void LearnPlainWeights();
    bool IsIndependent(char character, const std::vector<char>& others);
    /// False, with nothing of use in the key, for a text that is not made of independent characters alone.
    bool AppendPlainKey(std::string_view text);
    /// The key of a text without ignored characters by the locale's rules. It ends in its only 0.
    std::string CollatorKey(QStringView text) const;

    std::unique_ptr<UCollator, void (*)(UCollator*)> m_collator;
    std::array<Weight, 128> m_weights;
    std::vector<std::string> m_ends; ///< what follows the weights of so many characters
    std::string m_key;
};
