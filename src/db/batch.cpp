#include "db/batch.h"

#include "base/runtime_error.h"
#include "db/connection.h"
#include "db/connection_private.h"

#include <sqlite3.h>

namespace {

/// A failure such as a full disk may have ended the transaction already.
void Commit(ConnectionPrivate& connection)
{
    if (connection.handle == nullptr || sqlite3_get_autocommit(connection.handle) != 0)
        return;
    try {
        connection.RunPlain("COMMIT");
    } catch (...) {
        sqlite3_exec(connection.handle, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

} // namespace

void batch::Begin(Connection& connection)
{
    ConnectionPrivate& d = connection.Private();
    d.RequireOpen();
    if (d.openBatches == 0)
        d.RunPlain("BEGIN IMMEDIATE");
    ++d.openBatches;
}

void batch::End(Connection& connection)
{
    ConnectionPrivate& d = connection.Private();
    // Closing the connection has ended every batch on it.
    if (d.openBatches > 0 && --d.openBatches == 0)
        Commit(d);
}

void batch::EndAfterFailure(Connection& connection) noexcept
{
    try {
        End(connection);
    } catch (const RuntimeError&) {
        return;
    }
}
