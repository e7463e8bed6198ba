#include "base/date_words.h"

#include <algorithm>
#include <memory>

namespace {

constexpr int ShortestAbbreviation = 3;

bool IsLetter(QChar character)
{
    return character.isLetter() || character.isMark() || character.isSurrogate();
}

/// A word must not end inside another word or number.
bool EndsAt(QStringView text, qsizetype end)
{
    if (end >= text.size())
        return true;
    const QChar last = text.at(end - 1);
    const QChar next = text.at(end);
    return !(IsLetter(last) && IsLetter(next)) && !(last.isDigit() && next.isDigit());
}

QString WithoutSignsAtTheEnd(QString name)
{
    while (!name.isEmpty() && !IsLetter(name.back()) && !name.back().isDigit())
        name.chop(1);
    return name;
}

/// The English word at a place: a month's name or what it starts with, or a half of the day.
std::optional<DateWords::Found> EnglishWord(QStringView folded, qsizetype at)
{
    qsizetype end = at;
    while (end < folded.size() && IsLetter(folded.at(end)))
        ++end;
    const QStringView word = folded.mid(at, end - at);
    for (const char16_t half : {u'a', u'p'})
        if (!word.isEmpty() && word.front() == half && (word.size() == 1 || word.mid(1) == QLatin1String("m")))
            return DateWords::Found{half == u'a' ? DateWords::Kind::Am : DateWords::Kind::Pm, 0, word.size()};
    for (int month = 1; month <= 12 && word.size() >= ShortestAbbreviation; ++month)
        if (QLocale::c().monthName(month).startsWith(word, Qt::CaseInsensitive))
            return DateWords::Found{DateWords::Kind::Month, month, word.size()};
    return std::nullopt;
}

} // namespace

DateWords::DateWords(const RegionalFormats& formats)
{
    const QLocale& locale = formats.locale;
    for (int month = 1; month <= 12; ++month)
        for (const auto format : {QLocale::ShortFormat, QLocale::LongFormat})
            for (const QString& name : {locale.monthName(month, format), locale.standaloneMonthName(month, format)})
                if (std::any_of(name.begin(), name.end(), IsLetter))
                    Add(name, Kind::Month, month);
    Add(locale.amText(), Kind::Am, 0);
    Add(locale.pmText(), Kind::Pm, 0);
    AddFillings(formats.shortDate);
    for (auto& [first, words] : m_byFirst)
        std::stable_sort(
            words.begin(), words.end(), [](const Word& a, const Word& b) { return a.text.size() > b.text.size(); });
}

void DateWords::Add(QString text, Kind kind, int month)
{
    text = Fold(text);
    // A few languages name one month as English names another.
    if (const auto english = EnglishWord(text, 0); english && english->length == text.size() && english->month != month)
        return;
    for (const QString& word : {text, WithoutSignsAtTheEnd(text)})
        if (!word.isEmpty())
            m_byFirst[word.front().unicode()].push_back({word, kind, month});
}

/// The quoted words of a mask, such as the word for the year behind it.
void DateWords::AddFillings(const QString& mask)
{
    const QStringList parts = mask.split(QLatin1Char('"'));
    for (qsizetype quoted = 1; quoted < parts.size(); quoted += 2)
        Add(parts.at(quoted), Kind::Filling, 0);
}

std::optional<DateWords::Found> DateWords::At(const QString& folded, qsizetype at) const
{
    if (const auto bucket = m_byFirst.find(folded.at(at).unicode()); bucket != m_byFirst.end())
        for (const Word& word : bucket->second)
            if (QStringView(folded).mid(at).startsWith(word.text) && EndsAt(folded, at + word.text.size()))
                return Found{word.kind, word.month, word.text.size()};
    return EnglishWord(folded, at);
}

QString DateWords::Fold(QStringView text)
{
    QString folded = text.toString().toCaseFolded();
    std::replace_if(
        folded.begin(), folded.end(), [](QChar character) { return character.isSpace(); }, QLatin1Char(' '));
    return folded;
}

const DateWords& WordsOfDates()
{
    static std::unique_ptr<DateWords> words;
    static int generation = 0;
    if (!words || generation != Formats().generation) {
        words = std::make_unique<DateWords>(Formats());
        generation = Formats().generation;
    }
    return *words;
}
