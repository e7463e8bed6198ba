#include "arguments.h"

#include "base/clock.h"

#include <QCommandLineParser>

const char* const UsageText =
    R"(usage: make-database [--demo | --items N --customers N --invoices N] [--seed S] [--today YYYY-MM-DD] FILE
Makes a data file for Tavrin Inventory: the empty tables with the rows that the program counts on.
  --demo        with an invented shop of some 300 items, 150 customers and a year of invoices
  --items N     with N items in three price lists; likewise --customers N, and --invoices N of five lines each
  --seed S      other invented data of the same kind; the same seed gives the same file
  --today DAY   the day on which the year of invoices ends; the present day otherwise
An existing FILE is never overwritten.
)";

namespace {

int Count(const QCommandLineParser& parser, const QString& option)
{
    if (!parser.isSet(option))
        return 0;
    bool isNumber = false;
    const int count = parser.value(option).toInt(&isNumber);
    if (!isNumber || count < 0)
        throw UsageError{
            QStringLiteral("--%1 takes a whole number from 0 up, not \"%2\".").arg(option, parser.value(option))};
    return count;
}

quint64 Seed(const QCommandLineParser& parser)
{
    bool isNumber = false;
    const quint64 seed = parser.value(QStringLiteral("seed")).toULongLong(&isNumber);
    if (!isNumber)
        throw UsageError{QStringLiteral("--seed takes a whole number from 0 up, not \"%1\".")
                             .arg(parser.value(QStringLiteral("seed")))};
    return seed;
}

QDate Today(const QCommandLineParser& parser)
{
    const QString text = parser.value(QStringLiteral("today"));
    const QDate today = text.isEmpty() ? Now().date() : QDate::fromString(text, Qt::ISODate);
    if (!today.isValid())
        throw UsageError{QStringLiteral("--today takes a date such as 2024-05-31, not \"%1\".").arg(text)};
    return today;
}

Contents ContentsAskedFor(const QCommandLineParser& parser, const LargeFileSize& size)
{
    const bool large = parser.isSet(QStringLiteral("items")) || parser.isSet(QStringLiteral("customers"))
        || parser.isSet(QStringLiteral("invoices"));
    if (large && parser.isSet(QStringLiteral("demo")))
        throw UsageError{QStringLiteral("--demo brings its own numbers of items, customers and invoices.")};
    if (size.invoices > 0 && (size.items == 0 || size.customers == 0))
        throw UsageError{QStringLiteral("Invoices need --items and --customers.")};
    if (large)
        return Contents::LargeFile;
    return parser.isSet(QStringLiteral("demo")) ? Contents::DemoShop : Contents::SeedRows;
}

} // namespace

Arguments ReadArguments(const QStringList& words)
{
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(QStringLiteral("demo")));
    for (const char* name : {"items", "customers", "invoices", "today"})
        parser.addOption({QString::fromLatin1(name), QString(), QStringLiteral("value")});
    parser.addOption({QStringLiteral("seed"), QString(), QStringLiteral("value"), QStringLiteral("1")});
    if (!parser.parse(QStringList(QStringLiteral("make-database")) + words))
        throw UsageError{parser.errorText()};
    if (parser.positionalArguments().size() != 1 || parser.positionalArguments().first().isEmpty())
        throw UsageError{QStringLiteral("Name one file to make.")};

    Arguments arguments;
    arguments.file = parser.positionalArguments().first();
    arguments.size = {Count(parser, QStringLiteral("items")), Count(parser, QStringLiteral("customers")),
        Count(parser, QStringLiteral("invoices"))};
    arguments.contents = ContentsAskedFor(parser, arguments.size);
    arguments.seed = Seed(parser);
    arguments.today = Today(parser);
    return arguments;
}
