#pragma once

class Connection;

/// A database of the delivered kind with a few rows in it, in a folder of its own. It is made once, and is gConnection.
Connection& OpenFuzzDatabase();

/// While it lives, everything that is written is one batch; all of it is taken back at the end.
class UndoneChanges {
public:
    explicit UndoneChanges(Connection& connection);
    ~UndoneChanges();
    UndoneChanges(const UndoneChanges&) = delete;
    UndoneChanges& operator=(const UndoneChanges&) = delete;

private:
    Connection& m_connection;
};
