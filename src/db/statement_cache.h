#pragma once

#include "db/prepared_statement.h"

#include <list>
#include <memory>
#include <string>
#include <unordered_map>

/// The prepared statements of a connection by the shape of their text, the least used dropped first. A statement in use
/// stays with its user; a second use of its shape gets another one, which is not kept.
class StatementCache {
public:
    explicit StatementCache(LiveStatements& live)
        : m_live(live)
    {
    }

    /// Translates and prepares on a miss. Throws RuntimeError when either fails.
    std::shared_ptr<PreparedStatement> Statement(sqlite3* handle, const StatementShape& shape);
    /// The same for a statement in the engine's own SQL, by a key of the caller's.
    std::shared_ptr<PreparedStatement> Statement(sqlite3* handle, const std::string& key, const Translation& own);
    void Clear();
    size_t Size() const { return m_statements.size(); }

    static constexpr size_t MaximumSize = 200;

private:
    struct Entry {
        std::string key;
        std::shared_ptr<PreparedStatement> statement;
    };
    const std::shared_ptr<PreparedStatement>* Find(const std::string& key);
    std::shared_ptr<PreparedStatement> Keep(const std::string& key, std::shared_ptr<PreparedStatement> statement);

    LiveStatements& m_live;
    std::list<Entry> m_statements; ///< the latest used first
    std::unordered_map<std::string_view, std::list<Entry>::iterator> m_byKey; ///< keys lie in the entries
};
