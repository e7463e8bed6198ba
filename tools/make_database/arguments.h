#pragma once

#include "large_file.h"

#include <QDate>
#include <QStringList>

enum class Contents { SeedRows, DemoShop, LargeFile };

struct Arguments {
    QString file;
    Contents contents = Contents::SeedRows;
    LargeFileSize size;
    quint64 seed = 1;
    QDate today; ///< the last day of the year of invoices
};

/// What was wrong with the command line, for the person who typed it.
struct UsageError {
    QString message;
};

extern const char* const UsageText;

/// Reads the words behind the program's name. Throws UsageError.
Arguments ReadArguments(const QStringList& words);
