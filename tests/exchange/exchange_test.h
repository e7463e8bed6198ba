#pragma once

#include "support/scripted_answers.h"
#include "support/temporary_database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

/// A test that writes files: one with an old text stands where the new one goes.
class ExchangeTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        QFile old(File());
        ASSERT_TRUE(old.open(QFile::WriteOnly));
        old.write("old file");
    }

    QString File() const { return Folder() + "/written.txt"; }
    static QByteArray Text(const QString& path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : "no file";
    }
    QByteArray Text() const { return Text(File()); }

    ScriptedAnswers answers;
};

/// A target that cannot be written, and whether it is there afterwards.
struct BadTarget {
    const char* path; ///< below the test's folder
    void (*make)(const QString& path);
    bool stays;
};
inline void PrintTo(const BadTarget& target, std::ostream* out)
{
    *out << target.path;
}

inline const BadTarget BadTargets[] = {
    {"no folder/written.txt", [](const QString&) {}, false},
    // Nobody may make files there.
    {"no rights/written.txt", [](const QString& path) { QFile::link("/proc", QFileInfo(path).path()); }, false},
    {"folder.txt", [](const QString& path) { QDir().mkpath(path); }, true},
    {"pipe.txt", [](const QString& path) { mkfifo(qPrintable(path), 0600); }, true},
    {"db.mdb", [](const QString&) {}, true},
};
