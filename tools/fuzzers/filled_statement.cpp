#include "fuzz_database.h"
#include "fuzzing.h"

#include "db/connection.h"
#include "sql/statement_shape.h"

/// Texts in statements: whatever a text holds, it stays one literal, and what is written is found again. The first byte
/// chooses the locale, a line is one text, the rest another.

namespace {

bool IsText(const Literal& literal, const QString& text)
{
    const auto* held = std::get_if<std::string>(&literal);
    return held != nullptr && *held == Utf8Of(text);
}

StatementShape ShapeOf(const Sql& sql)
{
    StatementShape shape;
    ReadStatement(sql.Filled(), shape);
    return shape;
}

/// Every text has the mark of a plain one.
std::string WithPlainMarks(std::string shape)
{
    for (char& c : shape)
        if (c == char(LiteralMark::OtherText))
            c = char(LiteralMark::AsciiText);
    return shape;
}

void CheckShape(const char* statement, const QString& one, const QString& other)
{
    const StatementShape shape = ShapeOf(Sql(statement).Text("one", one).Text("other", other).Number("id", 7));
    const StatementShape plain =
        ShapeOf(Sql(statement).Text("one", QString()).Text("other", QString()).Number("id", 7));
    Expect(WithPlainMarks(shape.text) == WithPlainMarks(plain.text), "a text does not change the statement");
    Expect(shape.literals.size() == 3 && IsText(shape.literals[0], one) && IsText(shape.literals[1], other)
            && std::get<qint64>(shape.literals[2]) == 7,
        "each text is one literal, as it was given");
}

bool IsFound(const char* statement, const QString& text)
{
    const Recordset rs = gConnection->Execute(Sql(statement).Text("one", text));
    return !rs.Eof() && rs.Text(0) == Utf8Of(text);
}

void CheckStored(const QString& one, const QString& other)
{
    gConnection->Execute(Sql("UPDATE invoice SET Notes = '{one}', PaymentMethod = '{other}' WHERE id = {id}")
                             .Text("one", one)
                             .Text("other", other)
                             .Number("id", 1));
    const Recordset rs = gConnection->Execute("SELECT Notes, PaymentMethod FROM invoice WHERE id = 1");
    Expect(rs.Text(0) == Utf8Of(one) && rs.Text(1) == Utf8Of(other), "a text is stored as it was given");
    for (const char* find : {"SELECT Notes FROM invoice WHERE Notes = '{one}' AND id = 1",
             "SELECT Notes FROM invoice WHERE Notes IN ('-', '{one}') AND id = 1",
             "SELECT Notes FROM invoice WHERE NOT Notes <> '{one}' AND id = 1"})
        Expect(IsFound(find, one), "a text that was stored is found");
}

} // namespace

void Fuzz(FuzzInput input)
{
    ChooseLocale(input.Byte());
    const QString one = AnyText(input.Line());
    const QString other = AnyText(input.Rest());
    for (const char* statement : {"UPDATE item SET name = '{one}', Number = '{other}' WHERE id = {id}",
             "SELECT id FROM item WHERE (name = '{one}' OR Number = '{other}') AND id <> {id}"})
        CheckShape(statement, one, other);
    const UndoneChanges changes(OpenFuzzDatabase());
    CheckStored(one, other);
}
