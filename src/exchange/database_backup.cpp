#include "exchange/database_backup.h"

#include "base/database_path.h"
#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "db/database_copy.h"

#include <QCoreApplication>

namespace {

/// What is said around the backup.
struct DatabaseBackup {
    Q_DECLARE_TR_FUNCTIONS(DatabaseBackup)
};

bool Copy(const QString& database, const QString& target)
{
    const Hourglass hourglass(DatabaseBackup::tr("Copying the database..."));
    return CopyDatabase(database, target);
}

} // namespace

void BackupDatabase()
{
    const QString target = SaveFileNameAsTyped(DatabaseBackup::tr("Save As"), DatabaseBackup::tr("MDB (*.mdb)"));
    if (target.isEmpty())
        return;
    const QString database = DatabasePath();
    gConnection->Close();
    if (!Copy(database, target)) {
        MsgBox(DatabaseBackup::tr("Unable to write to file ") + target, Icon::Critical);
        gConnection->Open(database);
        return;
    }
    gConnection->Open(database);
    MsgBox(DatabaseBackup::tr("Successfully backed up database file."), Icon::Information);
}
