#include "db/prepared_statement.h"

#include "db/engine_errors.h"
#include "db/stored_value.h"

#include <sqlite3.h>

PreparedStatement::PreparedStatement(sqlite3* handle, Translation translation, LiveStatements& live)
    : m_handle(handle)
    , m_translation(std::move(translation))
    , m_live(&live)
{
    const std::string& sql = m_translation.sql;
    const int code =
        sqlite3_prepare_v3(handle, sql.data(), int(sql.size()) + 1, SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
    if (code != SQLITE_OK)
        throw EngineError(handle);
    m_live->insert(this);
}

PreparedStatement::~PreparedStatement()
{
    if (!IsClosed())
        Finalize();
}

void PreparedStatement::Bind(const std::vector<Literal>& literals)
{
    for (size_t i = 0; i < literals.size(); ++i)
        BindLiteral(m_statement, int(i) + 1, literals[i], m_translation.coercions[i]);
    m_inUse = true;
}

bool PreparedStatement::Step()
{
    switch (sqlite3_step(m_statement)) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        const RuntimeError error = EngineError(m_handle);
        Release();
        throw error;
    }
}

void PreparedStatement::Release()
{
    if (!IsClosed())
        sqlite3_reset(m_statement);
    m_inUse = false;
}

void PreparedStatement::Finalize()
{
    sqlite3_finalize(m_statement);
    m_statement = nullptr;
    m_live->erase(this);
}
