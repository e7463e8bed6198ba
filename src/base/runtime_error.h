#pragma once

#include <QString>

#include <exception>

/// A failure that no handler of the screen's own answers: it travels to the guard of the event that caused it, which
/// shows the platform's error box and ends the program without a further write.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, const QString& description);

    int Number() const { return m_number; }
    const QString& Description() const { return m_description; }

    /// The text of the error box: the number (a provider's with its hexadecimal form), a blank line, the description.
    QString BoxText() const;

    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

RuntimeError Overflow(); ///< 6
RuntimeError TypeMismatch(); ///< 13
RuntimeError PathFileAccessError(); ///< 75
RuntimeError InvalidUseOfNull(); ///< 94
RuntimeError InvalidPropertyValue(); ///< 380
RuntimeError InvalidPropertyArrayIndex(); ///< 381

/// The value as one of the 16-bit globals holds it. Throws Overflow beyond -32768..32767.
int ToInteger16(qint64 value);
