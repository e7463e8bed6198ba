#pragma once

#include "sql/dialect.h"

#include <string>
#include <unordered_set>

struct sqlite3;
struct sqlite3_stmt;

/// The statements of one connection that the engine holds, so that closing can take them away from their users.
class PreparedStatement;
using LiveStatements = std::unordered_set<PreparedStatement*>;

/// A statement in the engine. In use from Bind until Release.
class PreparedStatement {
public:
    /// Throws RuntimeError when the engine refuses the statement.
    PreparedStatement(sqlite3* handle, Translation translation, LiveStatements& live);
    ~PreparedStatement();
    PreparedStatement(const PreparedStatement&) = delete;
    PreparedStatement& operator=(const PreparedStatement&) = delete;

    /// Brings the literals to their kinds and hands them to the engine, which keeps no copy of texts: `literals` must
    /// stay until Release. Throws RuntimeError for one that its column cannot take.
    void Bind(const std::vector<Literal>& literals);
    /// True when there is a row. Throws RuntimeError when the statement fails; it is released then.
    bool Step();
    void Release();
    /// Takes the statement from the engine; its users find it closed.
    void Finalize();

    bool InUse() const { return m_inUse; }
    bool IsClosed() const { return m_statement == nullptr; }
    sqlite3_stmt* Handle() const { return m_statement; }
    const Translation& Meaning() const { return m_translation; }

private:
    sqlite3* m_handle;
    sqlite3_stmt* m_statement = nullptr;
    Translation m_translation;
    LiveStatements* m_live;
    bool m_inUse = false;
};
