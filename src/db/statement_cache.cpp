#include "db/statement_cache.h"

const std::shared_ptr<PreparedStatement>* StatementCache::Find(const std::string& key)
{
    const auto found = m_byKey.find(key);
    if (found == m_byKey.end())
        return nullptr;
    m_statements.splice(m_statements.begin(), m_statements, found->second);
    return &found->second->statement;
}

std::shared_ptr<PreparedStatement> StatementCache::Keep(
    const std::string& key, std::shared_ptr<PreparedStatement> statement)
{
    m_statements.push_front({key, statement});
    m_byKey.emplace(m_statements.front().key, m_statements.begin());
    if (m_statements.size() > MaximumSize) {
        m_byKey.erase(m_statements.back().key);
        m_statements.pop_back();
    }
    return statement;
}

std::shared_ptr<PreparedStatement> StatementCache::Statement(sqlite3* handle, const StatementShape& shape)
{
    const std::shared_ptr<PreparedStatement>* kept = Find(shape.text);
    if (kept == nullptr)
        return Keep(shape.text, std::make_shared<PreparedStatement>(handle, Translate(shape), m_live));
    if ((*kept)->InUse())
        return std::make_shared<PreparedStatement>(handle, (*kept)->Meaning(), m_live);
    return *kept;
}

std::shared_ptr<PreparedStatement> StatementCache::Statement(
    sqlite3* handle, const std::string& key, const Translation& own)
{
    if (const std::shared_ptr<PreparedStatement>* kept = Find(key))
        return *kept;
    return Keep(key, std::make_shared<PreparedStatement>(handle, own, m_live));
}

void StatementCache::Clear()
{
    m_byKey.clear();
    m_statements.clear();
}
