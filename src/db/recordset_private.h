#pragma once

#include "db/prepared_statement.h"

#include <memory>
#include <string>
#include <vector>

/// A statement on one of its rows.
class RecordsetPrivate {
public:
    /// Steps to the first row. The literals stay with the cursor, for the engine keeps no copy of them.
    RecordsetPrivate(std::shared_ptr<PreparedStatement> statement, std::vector<Literal> literals);
    ~RecordsetPrivate();
    RecordsetPrivate(const RecordsetPrivate&) = delete;
    RecordsetPrivate& operator=(const RecordsetPrivate&) = delete;

    bool Eof() const { return m_eof; }
    void MoveNext();
    void RequireOpen() const;
    /// The statement on its row. Throws RuntimeError at the end and for an ordinal that there is not.
    sqlite3_stmt* Row(int ordinal) const;
    const Translation& Meaning() const { return m_statement->Meaning(); }
    std::string& Buffer(int ordinal);

private:
    void Advance();

    std::shared_ptr<PreparedStatement> m_statement;
    std::vector<Literal> m_literals;
    std::vector<std::string> m_buffers; ///< texts of numbers and dates of the row
    bool m_eof = true;
};
