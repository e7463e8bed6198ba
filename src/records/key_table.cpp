#include "records/key_table.h"

namespace {

bool IsInUse(const KeyTable& table, qint64 id)
{
    return table.uses && gConnection->Execute(Sql(table.uses).Number("id", id))[0].ToLong() != 0;
}

} // namespace

QString EntryText(const KeyTable& table, const Recordset& row)
{
    return table.entryText ? table.entryText(row) : NullToText(row["name"]);
}

std::optional<qint64> KeyToEdit(const KeyTable& table, std::optional<qint64> selectedId)
{
    if (!selectedId)
        MsgBox(table.nothingToEdit, Icon::Critical);
    return selectedId;
}

bool MayRemoveKey(const KeyTable& table, std::optional<qint64> selectedId)
{
    const auto refuse = [](const QString& reason) {
        MsgBox(reason, Icon::Critical);
        return false;
    };
    if (!selectedId)
        return refuse(table.nothingToRemove);
    if (table.keptId != 0 && *selectedId == table.keptId)
        return refuse(table.keptRefusal);
    if (IsInUse(table, *selectedId))
        return refuse(table.inUse);
    return MsgBox(table.removeQuestion, Icon::Question, Buttons::YesNoCancel) == Answer::Yes;
}

void DeleteKey(const KeyTable& table, qint64 id)
{
    gConnection->Execute(Sql(table.remove).Number("id", id));
}
