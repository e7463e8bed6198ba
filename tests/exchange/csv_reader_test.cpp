#include "base/text_encoding.h"
#include "exchange/csv_reader.h"
#include "support/test.h"

namespace {

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

TEST(CsvCells, AreReadAsToldInTheFile)
{
    ExpectCases("csv.txt", [](const QString& act, const QString& given) {
        const std::string text = given.toStdString();
        const bool hasTitles = act.startsWith("titles");
        const char separator = act.back().toLatin1();
        CsvReader reader(text, QChar(separator).isLetter() ? std::nullopt : std::optional(separator));
        if (hasTitles)
            reader.ReadTitles();
        const std::string titles = hasTitles ? Cells(reader) + " above " : "";
        return QString::fromStdString(titles + Rows(reader));
    });
}

TEST(CsvCells, ThatAreTooManyFailAndTextIsUtf8OrElseInTheCodePageOfSpreadsheets)
{
    const std::string tooMany = std::string(40'000, ',') + "\r\n";
    EXPECT_EQ(ErrorOf([&] { CsvReader(tooMany, std::nullopt).ReadTitles(); }), 6);
    EXPECT_EQ(ErrorOf([&] { CsvReader(tooMany, std::nullopt).ReadRow(); }), 6);

    EXPECT_EQ(TextAsUtf8("\xEF\xBB\xBF\143af\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(TextAsUtf8("caf\xE9 \x80 \x96"), "caf\xC3\xA9 \xE2\x82\xAC \xE2\x80\x93");
    EXPECT_EQ(
        TextAsUtf8(QByteArray("\xFF\xFE\351\0a\0", 6)) + TextAsUtf8("\xFE\xFF\x20\xAC"), "\xC3\xA9\141\xE2\x82\xAC");
    EXPECT_EQ(TextAsUtf8("\xFF\xFE" + QByteArray("\x3D\xD8\0\xDE", 4).repeated(1 << 19)),
        QByteArray("\xF0\x9F\x98\x80").repeated(1 << 19));
    EXPECT_EQ(TextAsUtf8(QByteArray(3 << 20, '\xE9')), QByteArray("\xC3\xA9").repeated(3 << 20));
}

} // namespace
