#pragma once

#include <QString>

#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// A statement in the engine's own SQL, for what the program's dialect has no words for.
struct EngineSql {
    const char* text;
};

/// A statement of the program without literals as the engine gets it, but with texts in the plain order of their bytes.
std::string InByteOrder(const char* statement);

/// What is measured against: a statement of the program, in the engine's own SQL as the program translates it, prepared
/// once and run straight on the engine's interface. Whatever fails ends the benchmark with the engine's message.
class FloorStatement {
public:
    /// `statement` in the program's dialect; its literals become the values to bind.
    FloorStatement(sqlite3* handle, const char* statement);
    FloorStatement(sqlite3* handle, const QString& statement);
    FloorStatement(sqlite3* handle, EngineSql statement);
    ~FloorStatement();
    FloorStatement(const FloorStatement&) = delete;
    FloorStatement& operator=(const FloorStatement&) = delete;

    /// Runs it with other values for its literals, in order. Copies the texts of all rows; returns the number of rows.
    template <typename... Values>
    int Run(const Values&... values)
    {
        int place = 0;
        (Bind(++place, values), ...);
        return Step();
    }
    /// The first column of the last row of the last run.
    qint64 Number() const { return m_number; }

private:
    void Prepare(const char* sql);
    void Bind(int place, qint64 value);
    void Bind(int place, int value) { Bind(place, qint64(value)); }
    void Bind(int place, double value);
    void Bind(int place, const std::string& text);
    int Step();

    sqlite3* m_handle;
    sqlite3_stmt* m_statement = nullptr;
    std::string m_texts;
    qint64 m_number = 0;
};
