#pragma once

#include "db/connection.h"

/// Adding rows to one table: AddNew, set fields by name, Update, read the new id. The only way rows come into being.
/// Values are converted to the kind of their column by the number and date rules; text is stored as it is. Fields not
/// set take the table's default, else Null. A row that is left without Update is dropped.
///
///     AddRow row(*gConnection, "Customer");
///     row.AddNew();
///     row.Set("FirstName", txtFirstname->text());
///     row.Update();
///     gCurrentCustomerId = row.Id();
class AddRow {
public:
    /// `table` may stand in brackets. Throws RuntimeError when there is no such table.
    AddRow(Connection& connection, const char* table);
    ~AddRow();
    AddRow(const AddRow&) = delete;
    AddRow& operator=(const AddRow&) = delete;

    void AddNew();
    /// Throw RuntimeError for an unknown field and for a value that its column cannot take.
    void Set(const char* field, const QString& text);
    void Set(const char* field, qint64 number);
    void Set(const char* field, int number) { Set(field, qint64(number)); }
    void Set(const char* field, double number);
    void Set(const char* field, Currency amount);
    void Set(const char* field, bool value);
    void Set(const char* field, const QDateTime& date);
    void Set(const char* field, const Value& value);
    /// Writes the row. Throws RuntimeError when the table refuses it.
    void Update();
    /// The automatic key of the row that Update wrote.
    qint64 Id() const;

private:
    struct State;
    std::unique_ptr<State> d;
};
