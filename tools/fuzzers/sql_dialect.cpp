#include "fuzz_database.h"
#include "fuzzing.h"

#include "db/connection.h"
#include "db/connection_private.h"
#include "sql/dialect.h"

#include <algorithm>

#include <sqlite3.h>

/// Statements of the dialect: the first byte chooses the locale and, when its eighth bit is set, that each further byte
/// stands for a word of the dialect; else the rest is the statement.

namespace {

/// Blanks stand where they are needed. All that may follow one another in some statement of the program.
constexpr const char* Words[] = {"SELECT ", " FROM ", " WHERE ", "UPDATE ", " SET ", "DELETE FROM ", " GROUP BY ",
    " ORDER BY ", " HAVING ", "DISTINCT ", "TOP 1 ", "TOP 2 ", " DESC", " ASC", " AS ", " AND ", " OR ", " NOT ",
    " IN ", " IS NULL", " IS NOT NULL", " LIKE ", " BETWEEN ", " ON ", " INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN ",
    "true", "false", "null", "item", "invoice", "invoiceline", "customer", "taxrate", "[ItemPriceList]", "settings",
    "nextitemno", "id", "name", "[Name]", "Number", "Quantity", "Amount", "Paid", "SubmittedDate", "Notes",
    "percentage", "Price", "NoInStock", "LastName", "item.id", "item.name", "invoice.ID", "invoiceline.ItemID",
    "invoiceline.Amount", "ItemPriceList.itemid", "i", "i.", "[odd name]", "*", ", ", "(", ")", " = ", "<>", " < ",
    " >= ", "+", "-", "*", "/", " & ", ".", "count(*)", "count(", "sum(", "min(", "max(", "avg(", "year(", "month(",
    "day(", "0", "1", "2", "-1", "7.5", "1e3", "99999999999", "''", "'a'", "'Écrou'", "\"x\"", "'%a%'", "'[!a-f]_%'",
    "'12,5'", "#2003-07-04#", "#7/4/2003 11:59 PM#", ";", " "};

QString StatementOf(FuzzInput& input)
{
    const unsigned first = input.Byte();
    ChooseLocale(first & 0x7F);
    if (first < 0x80)
        return AnyText(input.Rest());
    constexpr int MostWords = 100;
    QString statement;
    for (int words = 0; !input.AtEnd() && words < MostWords; ++words)
        statement += QString::fromUtf8(Words[input.Byte() % std::size(Words)]);
    return statement;
}

bool IsMark(char c)
{
    return c >= char(LiteralMark::Whole) && c <= char(LiteralMark::Date);
}

bool HasMark(const Literal& literal, char mark)
{
    switch (LiteralMark(mark)) {
    case LiteralMark::Whole:
        return std::holds_alternative<qint64>(literal);
    case LiteralMark::Fraction:
        return std::holds_alternative<double>(literal);
    case LiteralMark::Date:
        return std::holds_alternative<DateLiteral>(literal);
    case LiteralMark::AsciiText:
    case LiteralMark::OtherText:
        break;
    }
    const auto* text = std::get_if<std::string>(&literal);
    const auto isAscii = [](char c) { return uint8_t(c) < 0x80; };
    return text != nullptr
        && std::all_of(text->begin(), text->end(), isAscii) == (mark == char(LiteralMark::AsciiText));
}

QString Written(const Literal& literal)
{
    struct Writer {
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(double number) const
        {
            const QString text = QString::number(number, 'g', 17);
            return text.contains(u'.') || text.contains(u'e') ? text : text + QLatin1String(".0");
        }
        QString operator()(const std::string& text) const
        {
            return u'\'' + SqlText(QString::fromStdString(text)) + u'\'';
        }
        QString operator()(const DateLiteral& date) const { return u'#' + QString::fromStdString(date.iso) + u'#'; }
    };
    return std::visit(Writer(), literal);
}

/// The shape without its blanks, and what was lifted from it, in one spelling.
std::string MeaningOf(const StatementShape& shape)
{
    std::string meaning = shape.text;
    std::erase(meaning, ' ');
    for (const Literal& literal : shape.literals)
        meaning += '\n' + Written(literal).toStdString();
    return meaning;
}

void CheckShape(const StatementShape& shape)
{
    QString statement;
    std::string plain;
    size_t literals = 0;
    for (const char c : shape.text) {
        if (!IsMark(c)) {
            plain.push_back(c);
            continue;
        }
        Expect(literals < shape.literals.size(), "each mark has its literal");
        const Literal& literal = shape.literals[literals++];
        Expect(HasMark(literal, c), "a literal is of the kind of its mark");
        statement += QString::fromStdString(plain) + u' ' + Written(literal) + u' ';
        plain.clear();
    }
    statement += QString::fromStdString(plain);
    Expect(literals == shape.literals.size(), "each literal has its mark");
    StatementShape again;
    Expect(Succeeds([&] { ReadStatement(statement, again); }), "what was read can be written and read");
    Expect(MeaningOf(again) == MeaningOf(shape), "what was read says the same when it is written");
}

/// The engine may refuse what means nothing, such as a sum of sums, but must understand each word.
bool IsUnderstood(sqlite3* handle, const std::string& sql, int& columns)
{
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(handle, sql.data(), int(sql.size()), &statement, nullptr);
    columns = code == SQLITE_OK ? sqlite3_column_count(statement) : -1;
    sqlite3_finalize(statement);
    const std::string message = sqlite3_errmsg(handle);
    const auto says = [&](const char* words) { return message.find(words) != std::string::npos; };
    return code == SQLITE_OK
        || !(says("syntax error") || says("unrecognized token") || says("incomplete input") || says("no such")
            || says("wrong number"));
}

void CheckTranslation(const Translation& translation, size_t literals, sqlite3* handle)
{
    Expect(translation.coercions.size() == literals, "each literal has its coercion");
    Expect(translation.columnNames.size() == translation.columnKinds.size(), "each column has its kind");
    int columns = 0;
    Expect(IsUnderstood(handle, translation.sql, columns), "the engine understands what was translated");
    Expect(columns < 0 || size_t(columns) == translation.columnNames.size(),
        "the engine's columns are those that have names");
}

void Run(const QString& statement)
{
    Recordset rs = gConnection->Execute(statement);
    constexpr int MostRows = 20;
    for (int row = 0; row < MostRows && !rs.Eof(); ++row, rs.MoveNext())
        for (int column = 0; column < rs.FieldCount(); ++column)
            Succeeds([&] { rs[column].ToText(); });
}

} // namespace

void Fuzz(FuzzInput input)
{
    const QString statement = StatementOf(input);
    StatementShape shape;
    if (!Succeeds([&] { ReadStatement(statement, shape); }))
        return;
    CheckShape(shape);
    Translation translation;
    if (!Succeeds([&] { translation = Translate(shape); }))
        return;
    Connection& connection = OpenFuzzDatabase();
    sqlite3* handle = connection.Private().handle;
    CheckTranslation(translation, shape.literals.size(), handle);
    const UndoneChanges changes(connection);
    // Tables side by side can make more rows than anybody waits for. What begins and ends around the statement counts
    // its steps from run to run, and must not be stopped.
    constexpr int Steps = 20000;
    sqlite3_progress_handler(
        handle, Steps, [](void*) { return 1; }, nullptr);
    Succeeds([&] { Run(statement); });
    sqlite3_progress_handler(handle, 0, nullptr, nullptr);
}
