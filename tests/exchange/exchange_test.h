#pragma once

#include "support/test.h"

#include <sys/stat.h>

/// A test that writes files: one with an old text stands where the new one goes.
class ExchangeTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        WriteFile(File(), "old file");
    }

    QString File() const { return Folder() + "/written.txt"; }
    QByteArray Text() const { return ReadFile(File()); }

    /// Lets `fail` write to targets that cannot be written, and holds that none comes or goes.
    void ForBadTargets(const std::function<void(const QString& path)>& fail) const
    {
        const QString folder = Folder() + "/folder.txt", pipe = Folder() + "/pipe.txt";
        QDir().mkpath(folder);
        mkfifo(qPrintable(pipe), 0600);
        // Nobody may make files in the second one.
        for (const QString& path :
            {Folder() + "/no folder/written.txt", QString("/proc/written.txt"), folder, pipe, DatabasePath()}) {
            SCOPED_TRACE(path.toStdString());
            const bool stood = QFileInfo::exists(path);
            fail(path);
            EXPECT_EQ(QFileInfo::exists(path), stood);
        }
    }

    ScriptedAnswers answers;
};
