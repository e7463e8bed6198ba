#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

/// How the letters of a text become the bytes of a file that other programs share.
class TextEncoding {
public:
    /// The user's locale's own; UTF-8 where that is plain ASCII, as in the C locale, so that no name is lost.
    static TextEncoding OfSystem();
    /// By a name such as "windows-1252", "UTF-8" or "UTF-8 with BOM"; the system's for a name that nobody knows.
    static TextEncoding Named(const QString& name);

    /// Of the bytes that are no UTF-8: the locale's own; where that is UTF-8, the one in which spreadsheets write,
    /// windows-1252.
    static TextEncoding OfOldFiles();

    /// To UTF-8. Bytes that stand for no letter become the replacement sign.
    QByteArray Decode(const QByteArray& bytes) const;
    /// What the encoding has no sign for becomes "?".
    QByteArray Encode(std::string_view utf8) const;

private:
    enum class Mark { None, ByteOrder };
    TextEncoding(const QByteArray& name, Mark mark);

    QByteArray m_name;
    Mark m_mark;
};

/// The bytes of a text file as UTF-8 without a byte order mark. UTF-16 is known by its mark; what is no UTF-8 either is
/// read as an old file.
QByteArray TextAsUtf8(QByteArray bytes);
