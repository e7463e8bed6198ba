#pragma once

#include "sql/value.h"

#include <memory>
#include <string_view>

class RecordsetPrivate;

/// A forward-only cursor over the rows of a SELECT. Test Eof, read fields by name or position, MoveNext.
class Recordset {
public:
    Recordset();
    explicit Recordset(std::unique_ptr<RecordsetPrivate> cursor);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    /// Throws RuntimeError 3704 for the cursor of a statement that is no SELECT, as all reading does.
    bool Eof() const;
    /// Throws RuntimeError 3021 at the end.
    void MoveNext();
    /// Lets the statement go before the end of its scope.
    void Close();

    /// A field by name, without regard to case; a column that two tables share is named "table.column" where the
    /// statement lists all columns. Throws RuntimeError 3265 for an unknown name, 3021 at the end.
    Value operator[](const char* name) const;
    Value operator[](int ordinal) const;

    int FieldCount() const;
    QString FieldName(int ordinal) const;
    /// The ordinal of a name, for loops that read many rows. Throws RuntimeError 3265.
    int Field(const char* name) const;

    /// Reads without building a Value. The text is UTF-8, "" when Null, and valid until MoveNext; Long and Money throw
    /// InvalidUseOfNull for Null.
    bool IsNull(int ordinal) const;
    qint64 Long(int ordinal) const;
    Currency Money(int ordinal) const;
    std::string_view Text(int ordinal) const;
    /// As Text, but as the file holds it: dates as "2003-07-04 00:00:00", numbers with a point.
    std::string_view StoredText(int ordinal) const;

private:
    RecordsetPrivate& Open() const;

    std::unique_ptr<RecordsetPrivate> d;
};
