#pragma once

#include <QByteArray>
#include <QFile>

/// Reads a file whole, a piece at a time, and brings its text to UTF-8.
class CsvFile {
public:
    /// Throws RuntimeError with the system's reason when it cannot be opened or is no ordinary file, and without a
    /// description when it is empty.
    explicit CsvFile(const QString& path);

    /// Reads on. False when all is read. Throws RuntimeError when that fails.
    bool ReadPiece();
    /// What was read, taken out of here.
    QByteArray TakeUtf8();

private:
    QFile m_file;
    QByteArray m_bytes;
    qsizetype m_read = 0;
};
