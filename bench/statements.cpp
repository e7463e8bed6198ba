#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "db/batch.h"

namespace {

Sql TypicalStatement(int id)
{
    return Sql(
        "UPDATE Item SET [Number] = '{number}', Name = '{name}', Description = '{description}', Barcode = '{barcode}', "
        "NoInStock = {stock}, ReorderLevel = {level} WHERE ID = {id};")
        .Text("number", QStringLiteral("10471"))
        .Text("name", QStringLiteral("Ship's Lantern, Brass"))
        .Text("description", QStringLiteral("It burns lamp oil for 12 hours."))
        .Text("barcode", QStringLiteral("2000009990003"))
        .Number("stock", 24)
        .Number("level", 6)
        .Number("id", id);
}

} // namespace

/// The row does not exist, so that the engine itself has next to nothing to do, and a transaction is open, so that the
/// disk has nothing to do.
void MeasureStatementOverhead(RunningProgram& program)
{
    constexpr int Rounds = 200;
    constexpr int Statements = 500;
    constexpr int NoSuchRow = 2'000'000'000;
    InBatch(*gConnection, [&] {
        FloorStatement floor(program.Handle(), TypicalStatement(NoSuchRow).Filled());
        const std::string number = "10471";
        const std::string name = "Ship's Lantern, Brass";
        const std::string description = "It burns lamp oil for 12 hours.";
        const std::string barcode = "2000009990003";
        const Pair pair = MeasureInTurn(
            Rounds,
            [&] {
                for (int i = 0; i < Statements; ++i)
                    gConnection->Execute(TypicalStatement(NoSuchRow + i));
            },
            [&] {
                for (int i = 0; i < Statements; ++i)
                    floor.Run(number, name, description, barcode, 24, 6, NoSuchRow + i);
            });
        constexpr double MicrosecondsOfOne = 1000.0 / Statements;
        const std::string length = std::to_string(TypicalStatement(NoSuchRow).Filled().size());
        PrintFigure(("statement of " + length + " characters, over the engine").c_str(),
            (pair.program.Median() - pair.floor.Median()) * MicrosecondsOfOne, 0, 5, "us");
    });
}
