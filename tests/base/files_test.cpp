#include "base/database_path.h"
#include "base/files.h"
#include "support/test.h"

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
    EXPECT_TRUE(FileExists(ProgramFolder())) << "a folder exists, too";
    EXPECT_FALSE(FileExists(Path("none")));
    ASSERT_TRUE(QFile::link(Path("none"), Path("link")));
    EXPECT_TRUE(FileExists(Path("link"))) << "though it leads nowhere";
}

TEST_F(Files, AUniqueNameIsFreeAndATemporaryFileIsMadeAndStays)
{
    const QString path = MakeUniqueFileName(m_folder.path() + "\\", ".csv");
    EXPECT_FALSE(FileExists(path));
    EXPECT_TRUE(path.endsWith(".csv"));
    bool hexadecimal = false;
    EXPECT_LT(QFileInfo(path).completeBaseName().toUInt(&hexadecimal, 16), 65535u);
    EXPECT_TRUE(hexadecimal);
    EXPECT_EQ(QFileInfo(path).path(), m_folder.path());
    const QString made = MakeTempFile(m_folder.path(), "tav");
    EXPECT_TRUE(FileExists(made));
    EXPECT_TRUE(QFileInfo(made).fileName().startsWith("tav"));
    EXPECT_NE(MakeTempFile(m_folder.path(), "tav"), made);
    EXPECT_EQ(MakeTempFile(Path("no such folder"), "tav"), "");
}

TEST_F(Files, TextEndsAtItsFirstNul)
{
    EXPECT_EQ(TrimAtNull(QStringLiteral("ab\0cd\0")), "ab");
    EXPECT_EQ(TrimAtNull("abc"), "abc");
    EXPECT_EQ(TrimAtNull(QString(2, QChar::Null)), "");
}

// Also run by the check of the package, from where an installed program lies.
TEST_F(Files, PicturesOfLogosGoToTheProgramsFolderOrToTheDatabasesWhereItIsInstalled)
{
    SaveConfig("DBPath", "/shop/");
    const QString folder = QCoreApplication::applicationDirPath();
    EXPECT_EQ(LogoFolder(), folder.endsWith("/lib/tavrin-inventory") ? "/shop" : folder);
}

class Guard : public testing::Test {
protected:
    Guard()
    {
        SetProgramEnd([this](const RuntimeError& error) { m_errors.append(error.BoxText()); });
    }

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

TEST_F(Guard, HandlersTakeAsManyOfASignalsArgumentsAsTheyWantAndIgnoringDropsRunTimeErrorsAlone)
{
    EXPECT_FALSE(Ignoring([] { throw TypeMismatch(); }));
    EXPECT_TRUE(Ignoring([] {}));
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_THROW(Ignoring([] { throw std::logic_error("a fault of ours"); }), std::logic_error);

    QObject sender;
    QStringList heard;
    On(&sender, &QObject::objectNameChanged, &sender, [&](const QString& name) { heard.append(name); });
    On(&sender, &QObject::objectNameChanged, &sender, [&] { heard.append("none"); });
    On(&sender, &QObject::objectNameChanged, &sender, [] { throw RuntimeError(-2147217900, "no"); });
    sender.setObjectName("name");
    EXPECT_EQ(heard, (QStringList{"name", "none"}));
    EXPECT_EQ(m_errors, QStringList{"Run-time error '-2147217900 (80040e14)':\n\nno"});
}

} // namespace
