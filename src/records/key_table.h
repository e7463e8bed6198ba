#pragma once

#include "controls/message_box.h"
#include "db/connection.h"

#include <optional>

/// All that tells one key table's dialogs from another's: its statements and what is said of it. In the statements {id}
/// is the row, {parentId} the row of the table above that the entries belong to, {name} the text of the name box.
struct KeyTable {
    const char* name = nullptr; ///< as rows are added: "[Warehouse]"

    const char* entries = nullptr; ///< `id`, `name` and what EntryText reads besides
    QString (*entryText)(const Recordset& row) = nullptr; ///< null for the name alone
    QString nothingToEdit = {};

    QString nothingToRemove = {};
    qint64 keptId = 0; ///< the row that nobody can remove; 0 for none
    QString keptRefusal = {};
    const char* uses = nullptr; ///< counts what points at the row; null when nothing hinders removing it
    QString inUse = {};
    QString removeQuestion = {};
    const char* remove = nullptr; ///< null for a table whose dialog deletes in its own way

    const char* form = nullptr;
    QString formTitle = {};
    QString formInstructions = {};
    QString nameMissing = {};
    const char* storedRow = nullptr;
    Icon notFoundIcon = Icon::None;
    const char* update = nullptr;
};

/// The text of the row in the table's list.
QString EntryText(const KeyTable& table, const Recordset& row);

/// The row to edit; nothing, after saying so, when none is selected.
std::optional<qint64> KeyToEdit(const KeyTable& table, std::optional<qint64> selectedId);

/// Whether the selected row may go: there is one, it is not the kept one, nothing points at it, and the user says yes,
/// in this order. Says why not.
bool MayRemoveKey(const KeyTable& table, std::optional<qint64> selectedId);

/// Deletes the row by the table's statement.
void DeleteKey(const KeyTable& table, qint64 id);
