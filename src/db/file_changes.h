#pragma once

#include <QtGlobal>

class Connection;

/// Remembers how far the rows of a file had come, to tell later whether anything was written since: through this
/// connection or by another program.
class FileChanges {
public:
    /// Whether anything was written since the last Changed or Remember; also true the first time, and after the file
    /// was opened anew. A statement that only failed may count. Costs a look at the file's head. Throws RuntimeError
    /// when the file cannot be read.
    bool Changed(Connection& connection);
    /// Takes the rows as they are now as seen: for the end of a batch that has told in its beginning, by Changed, that
    /// nobody else wrote, and then wrote what the caller knows.
    void Remember(Connection& connection) { Changed(connection); }

private:
    qint64 m_opening = -1;
    qint64 m_ownChanges = -1;
    qint64 m_othersVersion = -1;
};
