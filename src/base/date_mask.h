#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QTime>

/// A date mask cut into its parts once, to write many dates.
class DateMask {
public:
    explicit DateMask(const QString& mask);

    QString Write(const QDate& date, const QTime& time) const;

private:
    enum class Part {
        Literal,
        Day,
        Day2,
        DayShort,
        DayLong,
        Month,
        Month2,
        MonthShort,
        MonthLong,
        DayOfYear,
        Year2,
        Year4,
        Hour,
        Hour2,
        Minute,
        Minute2,
        Second,
        Second2,
        AmPm,
        LocaleAmPm,
    };
    struct Token {
        Part part;
        QString text;
    };

    struct Moment {
        QDate date;
        QTime time;
        int year = 0, month = 0, day = 0;
    };

    void Literal(const QString& text);
    qsizetype ReadQuoted(const QString& mask, qsizetype at);
    qsizetype ReadField(const QString& mask, qsizetype at);
    static QString NameOf(Part part, const QDate& date, const QTime& time);
    void Append(QString& text, const Token& token, const Moment& moment) const;

    QList<Token> m_tokens;
    bool m_twelveHours = false;
    bool m_afterHour = false;
};

/// The mask in the user's locale, kept from one call to the next.
const DateMask& CompiledMask(const QString& mask);
