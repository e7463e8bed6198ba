#pragma once

#include <QCoreApplication>

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reads comma-separated text line by line, in one pass. A line ends with CR LF and nothing else. The last character of
/// the text is not read, so that a last line without its end loses it.
///
/// Without a string separator each comma ends a cell, in quotes or not. With one, only quoted cells end: what follows
/// the closing separator is passed over up to the comma, and one character more, which suits `"a", "b"`. Without that
/// blank the opening separator of the next cell is passed over, and of a line that ends in a quoted cell the line end
/// is: the next line goes on in the same row. A doubled separator has no meaning.
class CsvReader {
    Q_DECLARE_TR_FUNCTIONS(CsvReader)
public:
    /// What a column's number has room for.
    static constexpr size_t MostColumns = 32768;

    /// `utf8` must outlive the reader.
    CsvReader(std::string_view utf8, std::optional<char> separator);

    /// Reads the titles of the first line into Cells. Each comma ends one, whatever the separator. Throws RuntimeError
    /// 62 when the line has no end, 6 when it has more columns than MostColumns.
    void ReadTitles();
    /// Reads the next line into Cells, without the blanks around each. False at the end of the text. Throws
    /// RuntimeError 6 when there are more columns than MostColumns.
    bool ReadRow();
    /// UTF-8, valid until the next line is read.
    const std::vector<std::string_view>& Cells() const { return m_cells; }

    /// How many bytes have been read.
    size_t Position() const { return m_pos; }

private:
    bool AtLineEnd() const;
    char Here() const { return m_text[m_pos]; }
    std::string_view From(size_t start) const { return m_text.substr(start, m_pos - start); }
    void StepOver();
    std::string_view ReadQuoted();
    std::string_view Joined(std::string_view start, std::string_view end);
    void Store(std::string_view cell);

    std::string_view m_text;
    std::optional<char> m_separator;
    std::array<bool, 256> m_stops{}; ///< the bytes at which plain text may end
    size_t m_pos = 0;
    size_t m_last = 0; ///< where the last character starts
    std::vector<std::string_view> m_cells;
    std::deque<std::string> m_joined; ///< cells that do not lie in one piece
};
