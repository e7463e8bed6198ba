#include "base/text_encoding.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace {

constexpr const char* Utf8 = "UTF-8";
constexpr const char* ByteOrderMark = "\xEF\xBB\xBF";

/// The locale's, not that of the running program: Qt has switched that to UTF-8.
QByteArray CodesetOfLocale()
{
    locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr)
        return Utf8;
    QByteArray codeset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return codeset;
}

bool IsKnown(const QByteArray& name)
{
    return QStringEncoder(name.constData()).isValid();
}

} // namespace

TextEncoding::TextEncoding(const QByteArray& name, Mark mark)
    : m_name(name)
    , m_mark(mark)
{
}

TextEncoding TextEncoding::OfSystem()
{
    constexpr const char* PlainAscii = "ANSI_X3.4-1968";
    const QByteArray codeset = CodesetOfLocale();
    const bool holdsNames = codeset != PlainAscii && IsKnown(codeset);
    return {holdsNames ? codeset : QByteArray(Utf8), Mark::None};
}

TextEncoding TextEncoding::Named(const QString& name)
{
    const QLatin1String ending(" with BOM");
    const bool isMarked = name.endsWith(ending, Qt::CaseInsensitive);
    const QByteArray plain = name.chopped(isMarked ? ending.size() : 0).trimmed().toLatin1();
    if (plain.isEmpty() || !IsKnown(plain))
        return OfSystem();
    return {plain, isMarked ? Mark::ByteOrder : Mark::None};
}

TextEncoding TextEncoding::OfOldFiles()
{
    const TextEncoding system = OfSystem();
    return system.m_name == Utf8 ? TextEncoding("windows-1252", Mark::None) : system;
}

QByteArray TextEncoding::Decode(const QByteArray& bytes) const
{
    // In pieces, since a whole text of two bytes a letter would take three times the room.
    constexpr qsizetype Piece = 1 << 20;
    QStringDecoder decoder(m_name.constData());
    // It keeps the half of a character that a piece ends in.
    QStringEncoder encoder(QStringConverter::Utf8);
    QByteArray utf8;
    for (qsizetype start = 0; start < bytes.size(); start += Piece) {
        const QString piece = decoder(QByteArrayView(bytes).sliced(start, qMin(Piece, bytes.size() - start)));
        utf8 += encoder(piece);
    }
    return utf8;
}

QByteArray TextAsUtf8(QByteArray bytes)
{
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Named(QStringLiteral("UTF-16")).Decode(bytes);
    if (!bytes.isValidUtf8())
        return TextEncoding::OfOldFiles().Decode(bytes);
    if (bytes.startsWith(ByteOrderMark))
        bytes.remove(0, qsizetype(std::strlen(ByteOrderMark)));
    return bytes;
}

QByteArray TextEncoding::Encode(std::string_view utf8) const
{
    const QByteArrayView plain(utf8.data(), qsizetype(utf8.size()));
    if (QStringConverter::encodingForName(m_name.constData()) == QStringConverter::Utf8 && plain.isValidUtf8())
        return (m_mark == Mark::ByteOrder ? QByteArray(ByteOrderMark) : QByteArray()) + plain.toByteArray();
    const auto flag = m_mark == Mark::ByteOrder ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default;
    QStringEncoder encoder(m_name.constData(), flag);
    QByteArray bytes = encoder(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
    // The encodings that are not Qt's own write a control sign for what they do not hold.
    constexpr char Substitute = '\x1a';
    if (!QStringConverter::encodingForName(m_name.constData()))
        bytes.replace(Substitute, '?');
    return bytes;
}
