#pragma once

#include "controls/message_box.h"

/// How the lists delete a record: what counts the rows that keep it, what is said and asked, and the statement that
/// deletes it. {id} is the record.
struct RowDeletion {
    const char* uses;
    QString inUse;
    QString inUseTitle;
    QString question;
    const char* remove;
    QString done; ///< for the status line
};

/// Deletes the record after asking. Returns false, having written nothing, for an id of 0 or -1, which is no record,
/// after telling that it is in use, and when the user said no. Throws RuntimeError when a statement fails.
bool DeleteRecord(const RowDeletion& deletion, qint64 id);
