#include "base/files.h"
#include "base/guard.h"
#include "base/runtime_error.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

class Files : public testing::Test {
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

TEST_F(Files, AFolderMayEndInEitherSeparatorOrNone)
{
    for (const char* folder : {"/opt/tavrin\\", "/opt/tavrin/", "/opt/tavrin"})
        EXPECT_EQ(NativePath(folder, "db.mdb"), "/opt/tavrin/db.mdb");
    EXPECT_EQ(NativePath("/", "db.mdb"), "/db.mdb");
    EXPECT_EQ(NativePath("", "db.mdb"), "db.mdb");
    SetProgramFolder("/opt/tavrin/");
    EXPECT_EQ(ProgramFolder(), "/opt/tavrin");
    SetProgramFolder("");
    EXPECT_TRUE(FileExists(ProgramFolder()));
}

TEST_F(Files, FoldersAndDanglingLinksExistToo)
{
    EXPECT_TRUE(FileExists(m_folder.path()));
    EXPECT_FALSE(FileExists(Path("none")));
    ASSERT_TRUE(QFile::link(Path("none"), Path("link")));
    EXPECT_TRUE(FileExists(Path("link")));
}

TEST_F(Files, AUniqueNameIsOneThatIsFree)
{
    const QString path = MakeUniqueFileName(m_folder.path() + "\\", ".csv");
    EXPECT_FALSE(FileExists(path));
    EXPECT_TRUE(path.endsWith(".csv"));
    bool hexadecimal = false;
    EXPECT_LT(QFileInfo(path).completeBaseName().toUInt(&hexadecimal, 16), 65535u);
    EXPECT_TRUE(hexadecimal);
    EXPECT_EQ(QFileInfo(path).path(), m_folder.path());
}

TEST_F(Files, TemporaryFilesAreMadeAndStay)
{
    const QString path = MakeTempFile(m_folder.path(), "tav");
    EXPECT_TRUE(FileExists(path));
    EXPECT_TRUE(QFileInfo(path).fileName().startsWith("tav"));
    EXPECT_NE(MakeTempFile(m_folder.path(), "tav"), path);
    EXPECT_EQ(MakeTempFile(Path("no such folder"), "tav"), "");
}

TEST_F(Files, TextEndsAtItsFirstNul)
{
    EXPECT_EQ(TrimAtNull(QStringLiteral("ab\0cd\0")), "ab");
    EXPECT_EQ(TrimAtNull("abc"), "abc");
    EXPECT_EQ(TrimAtNull(QString(2, QChar::Null)), "");
}

class Guard : public testing::Test {
protected:
    void SetUp() override
    {
        SetProgramEnd([this](const RuntimeError& error) { m_errors.append(error.BoxText()); });
    }
    void TearDown() override { SetProgramEnd({}); }

    QStringList m_errors;
};

TEST_F(Guard, TheFirstErrorEndsTheProgramAndNothingRunsAfterIt)
{
    bool wentOn = false;
    int later = 0;
    Guarded([&] {
        Guarded([] { throw TypeMismatch(); });
        wentOn = true;
        throw Overflow();
    });
    Guarded([&] { ++later; });
    EXPECT_EQ(m_errors, QStringList{"Run-time error '13':\n\nType mismatch"});
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(later, 0);
}

TEST_F(Guard, HandlersTakeAsManyOfASignalsArgumentsAsTheyWant)
{
    QObject sender;
    QStringList heard;
    On(&sender, &QObject::objectNameChanged, &sender, [&](const QString& name) { heard.append(name); });
    On(&sender, &QObject::objectNameChanged, &sender, [&] { heard.append("none"); });
    On(&sender, &QObject::objectNameChanged, &sender, [] { throw RuntimeError(-2147217900, "no"); });
    sender.setObjectName("name");
    EXPECT_EQ(heard, (QStringList{"name", "none"}));
    EXPECT_EQ(m_errors, QStringList{"Run-time error '-2147217900 (80040e14)':\n\nno"});
}

TEST_F(Guard, IgnoringDropsRunTimeErrorsAndNothingElse)
{
    EXPECT_FALSE(Ignoring([] { throw TypeMismatch(); }));
    EXPECT_TRUE(Ignoring([] {}));
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_THROW(Ignoring([] { throw std::logic_error("a fault of ours"); }), std::logic_error);
}

} // namespace
