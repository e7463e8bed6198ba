#include "exchange/csv_reader.h"

#include "base/runtime_error.h"

namespace {

bool IsInsideCharacter(char byte)
{
    return (byte & 0xC0) == 0x80;
}

std::string_view WithoutBlanks(std::string_view text)
{
    const size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(' ') + 1 - start);
}

} // namespace

CsvReader::CsvReader(std::string_view utf8, std::optional<char> separator)
    : m_text(utf8)
    , m_separator(separator)
    , m_last(utf8.empty() ? 0 : utf8.size() - 1)
{
    while (m_last > 0 && IsInsideCharacter(m_text[m_last]))
        --m_last;
    m_stops[quint8('\r')] = true;
    m_stops[quint8(separator.value_or(','))] = true;
}

bool CsvReader::AtLineEnd() const
{
    return m_pos + 1 < m_text.size() && m_text[m_pos] == '\r' && m_text[m_pos + 1] == '\n';
}

void CsvReader::StepOver()
{
    do
        ++m_pos;
    while (m_pos < m_text.size() && IsInsideCharacter(m_text[m_pos]));
}

void CsvReader::Store(std::string_view cell)
{
    if (m_cells.size() == MostColumns)
        throw Overflow();
    m_cells.push_back(cell);
}

void CsvReader::ReadTitles()
{
    m_cells.clear();
    const size_t end = m_text.find("\r\n", m_pos);
    if (end == std::string_view::npos)
        throw RuntimeError(62, tr("The first line has no end. Lines must end with CR LF."));
    std::string_view rest = m_text.substr(m_pos, end - m_pos);
    for (size_t comma = rest.find(','); comma != std::string_view::npos; comma = rest.find(',')) {
        Store(WithoutBlanks(rest.substr(0, comma)));
        rest.remove_prefix(comma + 1);
    }
    if (!rest.empty())
        Store(rest);
    m_pos = end + 2;
}

bool CsvReader::ReadRow()
{
    if (m_pos >= m_last)
        return false;
    m_cells.clear();
    m_joined.clear();
    size_t start = m_pos;
    while (m_pos < m_last) {
        if (!m_stops[quint8(Here())]) {
            ++m_pos;
            continue;
        }
        if (Here() == '\r') {
            if (AtLineEnd())
                break;
            ++m_pos;
            continue;
        }
        const std::string_view plain = From(start);
        Store(WithoutBlanks(m_separator ? Joined(plain, ReadQuoted()) : plain));
        StepOver();
        start = m_pos;
    }
    if (m_pos > start)
        Store(WithoutBlanks(From(start)));
    m_pos += 2;
    return true;
}

/// The text between two separators. Leaves the position on the character behind the comma.
std::string_view CsvReader::ReadQuoted()
{
    ++m_pos;
    const size_t start = m_pos;
    while (m_pos < m_last && Here() != *m_separator && !AtLineEnd())
        ++m_pos;
    const std::string_view quoted = From(start);
    if (m_pos < m_last)
        StepOver();
    while (m_pos < m_last && Here() != ',' && !AtLineEnd())
        ++m_pos;
    if (m_pos < m_last)
        StepOver();
    return quoted;
}

std::string_view CsvReader::Joined(std::string_view start, std::string_view end)
{
    if (start.empty())
        return end;
    return m_joined.emplace_back(start).append(end);
}
