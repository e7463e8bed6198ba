#include "db/file_changes.h"

#include "db/connection.h"
#include "db/connection_private.h"

#include <sqlite3.h>

#include <tuple>

namespace {

/// Another number after each commit of another connection, be it of another program or of this one.
qint64 OthersVersion(ConnectionPrivate& connection)
{
    static const std::string ask = "PRAGMA data_version";
    PreparedStatement& version = *connection.cache.Statement(connection.handle, ask, Translation{ask, {}, {}, {}});
    version.Step();
    const qint64 number = sqlite3_column_int64(version.Handle(), 0);
    version.Release();
    return number;
}

} // namespace

bool FileChanges::Changed(Connection& connection)
{
    ConnectionPrivate& d = connection.Private();
    d.RequireOpen();
    const FileChanges before = *this;
    m_opening = d.opening;
    m_ownChanges = sqlite3_total_changes64(d.handle);
    m_othersVersion = OthersVersion(d);
    return std::tie(m_opening, m_ownChanges, m_othersVersion)
        != std::tie(before.m_opening, before.m_ownChanges, before.m_othersVersion);
}
