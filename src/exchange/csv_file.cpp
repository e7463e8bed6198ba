#include "exchange/csv_file.h"

#include "base/runtime_error.h"
#include "base/text_encoding.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

CsvFile::CsvFile(const QString& path)
    : m_file(path)
{
    // A pipe would keep the reader waiting for ever.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        throw PathFileAccessError();
    if (!m_file.open(QFile::ReadOnly))
        throw RuntimeError(75, m_file.errorString());
    if (m_file.size() == 0)
        throw RuntimeError(62, QString());
    // The grid counts the places of its texts in 32 bits.
    if (m_file.size() > std::numeric_limits<quint32>::max())
        throw RuntimeError(7, QStringLiteral("Out of memory"));
    m_bytes.resize(m_file.size());
}

bool CsvFile::ReadPiece()
{
    constexpr qint64 Piece = 4 << 20;
    const qint64 read = m_file.read(m_bytes.data() + m_read, std::min(Piece, m_bytes.size() - m_read));
    if (read < 0)
        throw RuntimeError(75, m_file.errorString());
    m_read += read;
    // Nothing more comes from a file that has become shorter.
    return read > 0 && m_read < m_bytes.size();
}

QByteArray CsvFile::TakeUtf8()
{
    m_bytes.truncate(m_read);
    return TextAsUtf8(std::move(m_bytes));
}
