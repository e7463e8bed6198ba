#include "sql/spellings.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <array>

namespace {

/// No letter folds to more of Qt's characters.
constexpr qsizetype LongestFolded = 3;

struct Letter {
    std::string utf8;
    qsizetype folded; ///< how many characters it folds to
};

/// Leaves out most characters that there are.
bool MayHaveCase(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Mark_NonSpacing:
    case QChar::Number_Letter:
    case QChar::Symbol_Other:
        return true;
    default:
        return false;
    }
}

/// What folds to something else, by what it folds to: "ß" and its capital by "ss". The capitals of the plain alphabet
/// are left out.
const QMultiHash<QString, std::string>& OtherLetters()
{
    static const QMultiHash<QString, std::string> letters = [] {
        QMultiHash<QString, std::string> found;
        for (char32_t c = 0x80; c <= QChar::LastValidCodePoint; ++c) {
            if (!MayHaveCase(c))
                continue;
            const QString letter = QString::fromUcs4(&c, 1);
            if (const QString folded = letter.toCaseFolded(); folded != letter)
                found.insert(folded, letter.toStdString());
        }
        return found;
    }();
    return letters;
}

/// What a text that folds to `folded` may hold at a place. The letter itself comes first.
std::vector<Letter> LettersAt(const QString& folded, qsizetype at)
{
    const qsizetype own = folded[at].isHighSurrogate() && at + 1 < folded.size() ? 2 : 1;
    std::vector<Letter> letters{{folded.sliced(at, own).toStdString(), own}};
    for (qsizetype size = 1; size <= std::min(LongestFolded, folded.size() - at); ++size)
        for (const std::string& other : OtherLetters().values(folded.sliced(at, size)))
            letters.push_back({other, size});
    return letters;
}

} // namespace

std::vector<std::string> Spellings(std::string_view text, const IsBeginning& isBeginning)
{
    const QString folded = QString::fromUtf8(text.data(), qsizetype(text.size())).toCaseFolded();
    // By how far they reach, the next few places in turn.
    std::array<std::vector<std::string>, size_t(LongestFolded) + 1> reaching;
    const auto upTo = [&](qsizetype at) -> std::vector<std::string>& { return reaching[size_t(at) % reaching.size()]; };
    upTo(0).emplace_back();
    for (qsizetype at = 0; at < folded.size(); ++at) {
        std::vector<std::string> beginnings = std::move(upTo(at));
        upTo(at).clear();
        if (beginnings.empty())
            continue;
        const std::vector<Letter> letters = LettersAt(folded, at);
        for (std::string& beginning : beginnings) {
            // Where there is no choice a later one will ask.
            if (letters.size() == 1) {
                upTo(at + letters.front().folded).push_back(std::move(beginning += letters.front().utf8));
                continue;
            }
            for (const Letter& letter : letters)
                if (std::string longer = beginning + letter.utf8; isBeginning(longer))
                    upTo(at + letter.folded).push_back(std::move(longer));
        }
    }
    return upTo(folded.size());
}
