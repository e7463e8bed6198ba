#include "db/left_journal.h"

#include "sql/statement_errors.h"

#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <optional>

namespace {

constexpr QByteArrayView Magic("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
constexpr qint64 HeaderBytes = 28;
constexpr qint64 ChangeCounterAt = 24; ///< in page 1
constexpr quint32 LargestUnit = 65536; ///< of sectors and pages

std::optional<quint32> NumberAt(QFile& file, qint64 place)
{
    if (!file.seek(place))
        return std::nullopt;
    const QByteArray bytes = file.read(sizeof(quint32));
    if (bytes.size() != sizeof(quint32))
        return std::nullopt;
    return qFromBigEndian<quint32>(bytes.constData());
}

bool IsUnit(quint32 size)
{
    return size >= 512 && size <= LargestUnit && (size & (size - 1)) == 0;
}

/// Walks the page records of a journal: a header a sector long, then records of page number, page and checksum; after
/// a flush another header may follow on the next sector.
class JournalReader {
public:
    explicit JournalReader(const QString& path)
        : m_file(path)
    {
    }

    /// The change counter in the journal's copy of page 1; nothing when it has none or is no journal to roll back.
    std::optional<quint32> ChangeCounter()
    {
        if (!m_file.open(QIODevice::ReadOnly))
            return std::nullopt;
        for (qint64 header = 0; ReadHeader(header);) {
            qint64 record = header + m_sectorSize;
            for (quint32 i = 0; i < m_records; ++i, record += RecordBytes()) {
                const std::optional<quint32> page = NumberAt(m_file, record);
                if (!page)
                    return std::nullopt;
                if (*page == 1)
                    return NumberAt(m_file, record + qint64(sizeof(quint32)) + ChangeCounterAt);
            }
            header = (record + m_sectorSize - 1) / m_sectorSize * m_sectorSize;
        }
        return std::nullopt;
    }

private:
    qint64 RecordBytes() const { return qint64(m_pageSize) + 2 * qint64(sizeof(quint32)); }

    bool ReadHeader(qint64 place)
    {
        if (!m_file.seek(place) || m_file.read(Magic.size()) != Magic.toByteArray())
            return false;
        const std::optional<quint32> records = NumberAt(m_file, place + 8);
        // Later headers leave the sizes out.
        if (place == 0) {
            m_sectorSize = NumberAt(m_file, 20).value_or(0);
            m_pageSize = NumberAt(m_file, HeaderBytes - 4).value_or(0);
        }
        if (!records || !IsUnit(m_sectorSize) || !IsUnit(m_pageSize))
            return false;
        // A journal that was not flushed tells no number or all ones: its records go on to its end.
        const bool unknown = *records == 0 || *records == 0xffffffff;
        m_records = unknown ? quint32((m_file.size() - place - m_sectorSize) / RecordBytes()) : *records;
        return true;
    }

    QFile m_file;
    quint32 m_sectorSize = 0;
    quint32 m_pageSize = 0;
    quint32 m_records = 0;
};

/// A name that nothing bears yet.
QString AsideName(const QString& journalPath)
{
    const QString aside = journalPath + QStringLiteral("-of-another-file");
    QString name = aside;
    for (int i = 2; QFile::exists(name); ++i)
        name = aside + QStringLiteral("-%1").arg(i);
    return name;
}

} // namespace

QString SetAsideForeignJournal(const QString& databasePath)
{
    // The engine looks for it where a link leads.
    const QString journalPath = QFileInfo(databasePath).canonicalFilePath() + QStringLiteral("-journal");
    if (!QFile::exists(journalPath))
        return {};
    const std::optional<quint32> before = JournalReader(journalPath).ChangeCounter();
    QFile database(databasePath);
    if (!before || !database.open(QIODevice::ReadOnly))
        return {};
    const std::optional<quint32> now = NumberAt(database, ChangeCounterAt);
    // The engine counts on as it commits; a crash leaves the counter of before or the next one.
    if (!now || *now == *before || *now == *before + 1)
        return {};
    QString aside = AsideName(journalPath);
    if (!QFile::rename(journalPath, aside))
        throw CannotOpen(
            databasePath, QStringLiteral("The journal beside it belongs to another file and cannot be renamed."));
    return aside;
}
