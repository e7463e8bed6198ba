#include "fuzzing.h"

#include "base/text_encoding.h"
#include "exchange/csv_reader.h"

#include <QStringDecoder>
#include <QStringList>

/// The reader of comma-separated text against its rules taken a character at a time. The first byte chooses the string
/// separator, the second whether the first line has titles; the rest is the file.

namespace {

using Characters = QList<char32_t>;

/// Counts places from 1 and reads past the end as the rules do, where nothing is found.
class PlainReader {
public:
    PlainReader(const Characters& text, char32_t separator)
        : m_text(text)
        , m_separator(separator)
    {
    }

    /// The titles, or nothing when the line has no end.
    std::optional<QStringList> Titles()
    {
        QStringList titles;
        QString field;
        for (; !AtLineEnd(); ++m_pos) {
            if (m_pos > m_text.size())
                return std::nullopt;
            if (At(m_pos) == U',') {
                titles.append(Trimmed(field));
                field.clear();
            } else {
                field += QChar::fromUcs4(m_text[m_pos - 1]);
            }
        }
        if (!field.isEmpty())
            titles.append(field);
        m_pos += 2;
        return titles;
    }

    bool HasLine() const { return m_pos < m_text.size(); }

    QStringList Line()
    {
        QStringList cells;
        QString field;
        while (!AtLineEnd() && m_pos < m_text.size()) {
            if (m_separator != 0 && At(m_pos) == m_separator)
                ReadQuoted(field);
            else if (m_separator != 0 || At(m_pos) != U',') {
                Append(field);
                continue;
            }
            cells.append(Trimmed(field));
            field.clear();
            ++m_pos;
        }
        if (!field.isEmpty())
            cells.append(Trimmed(field));
        m_pos += 2;
        return cells;
    }

private:
    void ReadQuoted(QString& field)
    {
        ++m_pos;
        while (At(m_pos) != m_separator && !AtLineEnd() && m_pos < m_text.size())
            Append(field);
        if (m_pos < m_text.size())
            ++m_pos;
        while (At(m_pos) != U',' && !AtLineEnd() && m_pos < m_text.size())
            ++m_pos;
        if (m_pos < m_text.size())
            ++m_pos;
    }

    void Append(QString& field)
    {
        field += QChar::fromUcs4(m_text[m_pos - 1]);
        ++m_pos;
    }

    char32_t At(qsizetype pos) const { return pos <= m_text.size() ? m_text[pos - 1] : U'\0'; }
    bool AtLineEnd() const { return m_pos < m_text.size() && At(m_pos) == U'\r' && At(m_pos + 1) == U'\n'; }

    static QString Trimmed(QStringView text)
    {
        while (text.startsWith(u' '))
            text = text.sliced(1);
        while (text.endsWith(u' '))
            text.chop(1);
        return text.toString();
    }

    const Characters& m_text;
    char32_t m_separator;
    qsizetype m_pos = 1;
};

/// A byte order mark is a character like any other inside a text.
QString Decoded(std::string_view utf8)
{
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(
        QByteArrayView(utf8.data(), qsizetype(utf8.size())));
}

Characters CharactersOf(const QByteArray& utf8)
{
    Characters characters;
    for (const uint character : Decoded({utf8.constData(), size_t(utf8.size())}).toUcs4())
        characters.append(character);
    return characters;
}

QStringList CellsOf(const CsvReader& reader)
{
    QStringList cells;
    for (const std::string_view cell : reader.Cells())
        cells.append(Decoded(cell));
    return cells;
}

} // namespace

void Fuzz(FuzzInput input)
{
    constexpr char Separators[] = {'\0', '"', '\'', '#'};
    const char separator = Separators[input.Byte() % std::size(Separators)];
    const bool hasTitles = input.Byte() % 2 == 1;
    const QByteArray text = TextAsUtf8(input.Rest().toByteArray());
    Expect(text.isValidUtf8(), "a file's text is UTF-8");

    const Characters characters = CharactersOf(text);
    PlainReader plain(characters, char32_t(separator));
    CsvReader reader(std::string_view(text.constData(), size_t(text.size())),
        separator == '\0' ? std::nullopt : std::optional(separator));
    if (hasTitles) {
        const std::optional<QStringList> titles = plain.Titles();
        const bool read = Succeeds([&] { reader.ReadTitles(); });
        Expect(read == titles.has_value(), "titles are read when their line has an end");
        if (!titles)
            return;
        Expect(CellsOf(reader) == *titles, "titles are those of the rules");
    }
    while (reader.ReadRow()) {
        Expect(plain.HasLine(), "there are no more lines than by the rules");
        Expect(CellsOf(reader) == plain.Line(), "cells are those of the rules");
    }
    Expect(!plain.HasLine(), "there are no fewer lines than by the rules");
}
