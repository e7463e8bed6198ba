#include "base/runtime_error.h"
#include "exchange/csv_file.h"
#include "exchange/csv_reader.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

constexpr auto None = std::nullopt;

std::string Cells(const CsvReader& reader)
{
    std::string cells;
    for (const std::string_view cell : reader.Cells())
        cells.append(cells.empty() ? "<" : "|<").append(cell).append(">");
    return cells;
}

/// Cells in angle brackets, a line each.
std::string Rows(CsvReader& reader)
{
    std::string rows;
    while (reader.ReadRow())
        rows += Cells(reader) + "\n";
    return rows;
}

/// A text, and what is read from it.
struct Csv {
    std::optional<char> separator;
    std::string text;
    std::string rows;
};
void PrintTo(const Csv& csv, std::ostream* out)
{
    *out << csv.separator.value_or(' ') << ' ' << csv.text;
}

class CsvCells : public ::testing::TestWithParam<Csv> { };

} // namespace

TEST_P(CsvCells, AreRead)
{
    CsvReader reader(GetParam().text, GetParam().separator);
    EXPECT_EQ(Rows(reader), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(WithoutSeparator, CsvCells,
    ::testing::Values(Csv{None, "a,b\r\nc,d\r\n", "<a>|<b>\n<c>|<d>\n"}, Csv{None, "a,bc", "<a>|<b>\n"},
        Csv{None, "x", ""}, Csv{None, "\r\n", "\n"}, Csv{None, "a, \xC3\xA9\xE2\x82\xAC", "<a>|<\xC3\xA9>\n"},
        Csv{None, "a\r\n\r\nb,c,d\r\n", "<a>\n\n<b>|<c>|<d>\n"}, Csv{None, " a ,\t, \r\n", "<a>|<\t>|<>\n"},
        Csv{None, "a,,b,\r\n", "<a>|<>|<b>\n"}, Csv{None, "\"a,b\",c\r\n", "<\"a>|<b\">|<c>\n"},
        Csv{None, "a,b\nc,d\n", "<a>|<b\nc>|<d>\n"}, Csv{None, "a,b\rc,d\r", "<a>|<b\rc>|<d>\n"},
        Csv{None, "a\0b,c\r\n"s, "<a\0b>|<c>\n"s}));

INSTANTIATE_TEST_SUITE_P(WithSeparator, CsvCells,
    ::testing::Values(Csv{'"', "\"a\", \"b\", c\r\n", "<a>|<b>|<c>\n"}, Csv{'\'', "'a', 'b', c\r\n", "<a>|<b>|<c>\n"},
        Csv{'#', "#a#, #b#, c\r\n", "<a>|<b>|<c>\n"}, Csv{'"', "a,b\r\n", "<a,b>\n"},
        // The opening quote behind a comma without a blank is passed over; its closing one opens a cell.
        Csv{'"', "\"a\",\"b\"\r\nc, d\r\n", "<a>|<b>|<d>\n"}, Csv{'"', "\"a\",\"b\",\"c\"\r\n", "<a>|<b,>\n"},
        // A quoted cell at its end takes the line end with it.
        Csv{'"', "\"a\", \"b\"\r\n\"c\", \"d\"\r\n", "<a>|<b>|<c>|<d>\n"},
        Csv{'"', "a,b \"c\", d\r\n", "<a,b c>|<d>\n"}, Csv{'"', "\"a\"\"b\", c\r\n", "<a>|<c>\n"},
        Csv{'"', "\"a\r\nb\", c\r\n", "<a>|<c>\n"}, Csv{'"', "\" a \", \"\", x\r\n", "<a>|<>|<x>\n"},
        Csv{'"', "a\"b", "<a>\n"}, Csv{'"', "\"", ""}, Csv{'"', "\"ab", "<a>\n"},
        Csv{'"', "\"\xE2\x82\xAC\"\xC3\xA9,\xC3\xA9z, y\r\n", "<\xE2\x82\xAC>|<z, y>\n"}));

TEST(CsvTitles, EndAtCommasWhateverTheSeparator)
{
    CsvReader reader("\" Name \" , No\r\n\"a\", b\r\n", '"');
    reader.ReadTitles();
    EXPECT_EQ(Cells(reader), "<\" Name \">|< No>");
    EXPECT_EQ(Rows(reader), "<a>|<b>\n");

    CsvReader titlesAlone(",b,\r\n", None);
    titlesAlone.ReadTitles();
    EXPECT_EQ(Cells(titlesAlone), "<>|<b>");
    EXPECT_FALSE(titlesAlone.ReadRow());
}

namespace {

int ErrorOf(const std::string& text, void (*read)(CsvReader&))
{
    try {
        CsvReader reader(text, None);
        read(reader);
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace

TEST(CsvTitles, ThatNeverEndOrAreTooManyFail)
{
    const std::string tooMany = std::string(40'000, ',') + "\r\n";
    EXPECT_EQ(ErrorOf("a,b\nc,d\n", [](CsvReader& reader) { reader.ReadTitles(); }), 62);
    EXPECT_EQ(ErrorOf(tooMany, [](CsvReader& reader) { reader.ReadTitles(); }), 6);
    EXPECT_EQ(ErrorOf(tooMany, [](CsvReader& reader) { reader.ReadRow(); }), 6);
}

TEST(CsvText, IsReadAsUtf8OrElseInTheCodePageOfSpreadsheets)
{
    EXPECT_EQ(TextAsUtf8("\xEF\xBB\xBF"
                         "caf\xC3\xA9"),
        "caf\xC3\xA9");
    EXPECT_EQ(TextAsUtf8("caf\xE9 \x80 \x96"), "caf\xC3\xA9 \xE2\x82\xAC \xE2\x80\x93");
    EXPECT_EQ(TextAsUtf8(QByteArray(3 << 20, '\xE9')), QByteArray("\xC3\xA9").repeated(3 << 20));
}
