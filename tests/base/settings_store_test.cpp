#include "base/settings_store.h"
#include "support/test.h"

namespace {

class SettingsStore : public testing::Test {
protected:
    SettingsStore() { SetSettingsFolder(m_folder.path()); }

    QTemporaryDir m_folder;
};

TEST_F(SettingsStore, TextsComeBackAsTheyWereSavedAndAnAbsentKeyGivesTheFallback)
{
    EXPECT_EQ(GetConfig("Text", "/opt/tavrin/"), "/opt/tavrin/");
    const QStringList texts = {"", "a,b", "say \"hello\"", "two\nlines\r\n", QStringLiteral("nul\0nul"), "Ünïcödé 😀",
        "@Variant(", "@", "a;b=c", " blanks ", "C:\\Data\\", "%20", "True", "8.25", QString(100000, 'x')};
    for (const QString& text : texts) {
        SaveConfig("Text", text);
        EXPECT_EQ(GetConfig("Text", "absent"), text);
    }
}

TEST_F(SettingsStore, TextsWrittenByHandAreReadWholeAndStayAsTheyAre)
{
    const QList<std::pair<const char*, const char*>> written = {{"DBPath", "/home/ann,  bob/the shop; old, /"},
        {"PostCode", "a;b"}, {"SalesTaxName", "#1 = VAT, GST"}, {"CostPerNight", "1,5"}, {"Price List", "50%, 100%"},
        {"Odd", ",;,"}};
    QByteArray lines = "; by hand\n[Config]\n";
    for (const auto& [key, text] : written)
        lines += QByteArray(key) + " = " + text + "\n";
    WriteFile(m_folder.filePath("Tavrin Inventory.ini"), lines + "[Other]\nDBPath=x,y\n");
    for (int turn = 0; turn < 2; ++turn) {
        for (const auto& [key, text] : written)
            EXPECT_EQ(GetConfig(key, "absent"), text) << key << turn;
        EXPECT_EQ(GetSetting("Tavrin Inventory", "Other", "DBPath", "absent"), "x,y");
        SaveConfig("FirstRun", "False");
    }
}

TEST_F(SettingsStore, EachAddressIsItsOwnAndAStoreThatCannotBeReadCountsAsEmpty)
{
    SaveConfig("Current Tip", "config");
    SaveOption("Current Tip", "option");
    SaveSetting("Tavrin Inventory", "Other", "Current Tip", "section");
    EXPECT_EQ(GetConfig("Current Tip", ""), "config");
    EXPECT_EQ(GetOption("Current Tip", ""), "option");
    EXPECT_EQ(GetSetting("TavrinInventory", "Options", "Current Tip", ""), "option");
    EXPECT_EQ(GetSetting("Tavrin Inventory", "Config", "Current Tip", ""), "config");
    EXPECT_TRUE(ReadFile(m_folder.filePath("Tavrin Inventory.ini")).contains("Current%20Tip=config")) << "at once";

    // A folder stands where the file would be.
    SetSettingsFolder(m_folder.filePath("other"));
    ASSERT_TRUE(QDir(m_folder.path()).mkpath("other/Tavrin Inventory.ini"));
    EXPECT_EQ(GetConfig("FirstRun", "True"), "True");
    SaveConfig("FirstRun", "False");
    EXPECT_EQ(GetConfig("FirstRun", "True"), "True");
}

} // namespace
