#pragma once

#include "base/regional_formats.h"

#include <optional>
#include <unordered_map>
#include <vector>

/// The words that a date may hold in one locale: its names of months, whole and abbreviated, its halves of the day, and
/// the words of its date mask. English names hold everywhere.
class DateWords {
public:
    enum class Kind { Month, Am, Pm, Filling };
    struct Found {
        Kind kind;
        int month = 0; ///< 1 to 12
        qsizetype length = 0;
    };

    explicit DateWords(const RegionalFormats& formats);

    /// The longest word that starts at `at` of a text from Fold and is no part of a longer one. Names may hold digits,
    /// points and blanks.
    std::optional<Found> At(const QString& folded, qsizetype at) const;

    /// A text in which case and the kind of a blank make no difference.
    static QString Fold(QStringView text);

private:
    struct Word {
        QString text;
        Kind kind;
        int month;
    };
    void Add(QString text, Kind kind, int month);
    void AddFillings(const QString& mask);

    std::unordered_map<char16_t, std::vector<Word>> m_byFirst; ///< the longest first
};

/// The words of the user's locale, kept from one call to the next.
const DateWords& WordsOfDates();
