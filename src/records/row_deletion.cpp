#include "records/row_deletion.h"

#include "controls/status_line.h"
#include "db/connection.h"
#include "db/new_row.h"

bool DeleteRecord(const RowDeletion& deletion, qint64 id)
{
    if (id == 0 || id == NewRow)
        return false;
    if (gConnection->Execute(Sql(deletion.uses).Number("id", id))[0].ToLong() > 0) {
        MsgBox(deletion.inUse, Icon::Critical, deletion.inUseTitle);
        return false;
    }
    if (MsgBox(deletion.question, Icon::Question, Buttons::YesNo) != Answer::Yes)
        return false;
    // What else points at the record and was not counted stays behind.
    gConnection->Execute(Sql(deletion.remove).Number("id", id));
    ShowStatus(deletion.done);
    return true;
}
