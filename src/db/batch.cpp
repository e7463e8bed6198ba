#include "db/batch.h"

#include "db/connection.h"
#include "db/connection_private.h"
#include "db/engine_errors.h"

#include <exception>

#include <sqlite3.h>

namespace {

/// A failure such as a full disk may have ended the transaction already.
void Commit(const ConnectionPrivate& connection)
{
    if (connection.handle == nullptr || sqlite3_get_autocommit(connection.handle) != 0)
        return;
    if (sqlite3_exec(connection.handle, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK)
        return;
    const RuntimeError error = EngineError(connection.handle);
    sqlite3_exec(connection.handle, "ROLLBACK", nullptr, nullptr, nullptr);
    throw error;
}

} // namespace

Batch::Batch(Connection& connection)
    : m_connection(connection)
    , m_exceptions(std::uncaught_exceptions())
{
    ConnectionPrivate& d = m_connection.Private();
    d.RequireOpen();
    if (d.openBatches == 0)
        d.RunPlain("BEGIN IMMEDIATE");
    ++d.openBatches;
}

Batch::~Batch() noexcept(false)
{
    ConnectionPrivate& d = m_connection.Private();
    // Closing the connection has ended every batch on it.
    if (d.openBatches == 0 || --d.openBatches > 0)
        return;
    try {
        Commit(d);
    } catch (const RuntimeError&) {
        // The failure that is on its way already ends the act; a second one cannot be thrown beside it.
        if (std::uncaught_exceptions() == m_exceptions)
            throw;
    }
}
