#include "controls/row_search.h"

#include <algorithm>
#include <set>

namespace {
/// Stands between the cells of a row, so that no word is found across two of them. Nobody types it.
constexpr char CellEnd = '\x1F';

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

char AsciiLower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
}
} // namespace

std::vector<int> RowSearch::RowsWith(const QStringList& words, const FlexGridRows& rows)
{
    if (m_ends.empty())
        Fold(rows);
    std::set<std::string> folded;
    for (const QString& word : words)
        folded.insert(word.toCaseFolded().toStdString());

    std::vector<int> found;
    const std::string_view text = m_text;
    size_t start = 0;
    for (size_t row = 0; row < m_ends.size(); start = m_ends[row++]) {
        const std::string_view cells = text.substr(start, m_ends[row] - start);
        if (std::all_of(folded.begin(), folded.end(),
                [cells](const std::string& word) { return cells.find(word) != std::string_view::npos; }))
            found.push_back(int(row));
    }
    return found;
}

void RowSearch::Forget()
{
    m_text = {};
    m_ends = {};
}

void RowSearch::Fold(const FlexGridRows& rows)
{
    m_ends.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) {
        const size_t start = m_text.size();
        for (int col = 0; col < rows.CellsOf(row); ++col)
            m_text.append(rows.Cell(row, col)) += CellEnd;
        FoldFrom(start);
        m_ends.push_back(m_text.size());
    }
}

void RowSearch::FoldFrom(size_t start)
{
    const auto from = m_text.begin() + std::ptrdiff_t(start);
    // Nearly all rows are of this kind, which needs no detour over another coding.
    if (std::all_of(from, m_text.end(), IsAscii)) {
        std::transform(from, m_text.end(), from, AsciiLower);
        return;
    }
    const QString cells = QString::fromUtf8(m_text.data() + start, qsizetype(m_text.size() - start));
    m_text.replace(start, std::string::npos, cells.toCaseFolded().toStdString());
}
