#include "app/about.h"
#include "app/app_test.h"
#include "app/help_desk.h"
#include "app/help_key.h"
#include "inventory/item_details.h"

#include <QDirIterator>
#include <QHelpContentModel>
#include <QHelpIndexWidget>

namespace {

class HelpTest : public MainWindowTest {
protected:
    /// As it is delivered.
    static QString Delivered() { return QStringLiteral(PROGRAM_FOLDER "/tavrinhelp.qch"); }

    /// The file's name of the page that F1 opens on the control.
    static QString PageAt(const HelpPages& pages, const QWidget* control)
    {
        for (const QString& name : HelpNamesAt(control))
            if (const QUrl page = pages.PageOf(name); !page.isEmpty())
                return page.fileName();
        return {};
    }
};

QStringList Captures(const char* pattern, const QString& text)
{
    QStringList found;
    for (const QRegularExpressionMatch& match : QRegularExpression(QLatin1String(pattern)).globalMatch(text))
        found.append(match.captured(1));
    return found;
}

/// The names of all forms and panels, from the sources.
QSet<QString> ScreenNames()
{
    QSet<QString> names;
    QDirIterator sources(QStringLiteral(SOURCE_FOLDER), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const char* pattern : {"class (frm\\w+)", "Panel\\(\"(pic\\w+)\""})
            for (const QString& name : Captures(pattern, text))
                names.insert(name);
    }
    return names;
}

QSet<QString> PagesInContents(QHelpContentModel& model, const QModelIndex& parent)
{
    QSet<QString> pages;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex entry = model.index(row, 0, parent);
        pages += PagesInContents(model, entry) + QSet<QString>{model.contentItemAt(entry)->url().fileName()};
    }
    return pages;
}

} // namespace

TEST_F(HelpTest, EveryPageIsReachedFromContentsIndexAndAFormAndEveryFormHasOneAndNoLinkIsDead)
{
    HelpPages help(Delivered());
    ASSERT_TRUE(help.AreThere());
    QHelpEngine& engine = help.Engine();
    QHelpContentModel& contents = *engine.contentModel();
    ASSERT_TRUE(QTest::qWaitFor([&] { return contents.rowCount() > 0 && engine.indexModel()->rowCount() > 0; }));

    QMap<QString, QString> pages;
    for (const QUrl& page : engine.files(QStringLiteral("tavrin.help"), QString(), QStringLiteral("html")))
        pages.insert(page.fileName(), QString::fromUtf8(help.Read(page)));
    EXPECT_EQ(PagesInContents(contents, {}), QSet<QString>(pages.keyBegin(), pages.keyEnd()));

    QSet<QString> inIndex;
    for (const QString& word : engine.indexModel()->stringList()) {
        // A word leads to one place, whatever the number of names that lead there too.
        QSet<QUrl> places;
        for (const QHelpLink& place : engine.documentsForKeyword(word))
            places.insert(place.url);
        ASSERT_EQ(places.size(), 1) << word.toStdString();
        inIndex.insert(places.begin()->fileName());
    }
    QStringList reached;
    for (const QString& screen : ScreenNames()) {
        EXPECT_FALSE(help.PageOf(screen).isEmpty()) << screen.toStdString();
        reached.append(help.PageOf(screen).fileName());
    }
    EXPECT_GT(reached.size(), 50);
    const QUrl folder = help.PageOf(QStringLiteral("1"));
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        EXPECT_TRUE(inIndex.contains(page.key())) << page.key().toStdString();
        for (const QString& link : Captures("(?:href|src)=\"([^\"]+)\"", page.value())) {
            const QUrl target = folder.resolved(page.key()).resolved(link);
            EXPECT_FALSE(help.Read(target.adjusted(QUrl::RemoveFragment)).isEmpty())
                << page.key().toStdString() << " -> " << link.toStdString();
            EXPECT_TRUE(!target.hasFragment()
                || pages.value(target.fileName()).contains(QStringLiteral("<a name=\"%1\">").arg(target.fragment())))
                << page.key().toStdString() << " -> " << link.toStdString();
        }
    }
    for (int i = 0; i < reached.size(); ++i)
        for (const QString& link : Captures(R"x(href="([\w-]+\.html))x", pages.value(reached[i])))
            if (!reached.contains(link))
                reached.append(link);
    for (const QString& page : pages.keys())
        EXPECT_TRUE(reached.contains(page)) << page.toStdString();
}

TEST_F(HelpTest, F1GoesToThePageOfTheNearestScreenThatHasOne)
{
    const HelpPages help(Delivered());
    MainWindow& window = Window();
    EXPECT_EQ(PageAt(help, window.picArrivals->gInvoices), "invoice-history.html");
    window.Run("mnuReservationAdd");
    EXPECT_EQ(PageAt(help, window.picNewInvoice->txtCity), "invoice-page.html");
    EXPECT_EQ(PageAt(help, &window), "invoice-page.html");
    EXPECT_EQ(PageAt(help, window.Toolbar), "main-window.html");
    frmItemDetails::gEditItemId = -1;
    frmItemDetails item(&window);
    EXPECT_EQ(PageAt(help, item.cmdOk), "item-record.html");
    const QMessageBox question(&item);
    EXPECT_EQ(PageAt(help, &question), "item-record.html");
    EXPECT_EQ(PageAt(help, nullptr), "");
    EXPECT_EQ(help.PageOf("1").fileName(), "index.html");
}

TEST_F(HelpTest, TheViewerIsUsedBesideAModalForm)
{
    HelpDesk desk;
    const HelpKey helpKey(nullptr);
    MainWindow& window = Window();
    SetProgramFolder(PROGRAM_FOLDER);
    WhenFormShows<frmAbout>([&](frmAbout& about) {
        Press(about.cmdOK, Qt::Key_F1);
        frmHelp& viewer = *desk.Viewer();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&viewer));
        EXPECT_EQ(viewer.txtPage->source().fileName(), "tips-and-about.html");
        viewer.ShowTab(frmHelp::SearchTab);
        Type(viewer.txtSearch, "NOT stock");
        Press(viewer.txtSearch, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return viewer.lstResults->count() > 1; }, 20'000))
            << viewer.lblResults->text().toStdString();
        Click(about.cmdOK);
    });
    window.Run("mnuAbout");
    // And beside one that opens later.
    WhenFormShows<frmAbout>([&](frmAbout& about) {
        frmHelp& viewer = *desk.Viewer();
        viewer.activateWindow();
        viewer.ShowTab(frmHelp::IndexTab);
        Type(viewer.txtIndex, "rounding");
        Press(viewer.txtIndex, Qt::Key_Return);
        EXPECT_EQ(viewer.txtPage->source().fileName(), "money.html");
        Click(about.cmdOK);
    });
    window.Run("mnuAbout");
    OpenHelp(HelpCommand::Context, 3);
    EXPECT_EQ(desk.Viewer()->txtPage->source().fileName(), "tutorial.html");
    OpenHelp(HelpCommand::Tab, -2);
    EXPECT_EQ(desk.Viewer()->tabHelp->currentIndex(), frmHelp::IndexTab);
    OpenHelp(HelpCommand::Tab, -1);
    EXPECT_EQ(desk.Viewer()->tabHelp->currentIndex(), frmHelp::SearchTab);

    Shown(&window);
    window.picArrivals->gInvoices->setFocus();
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_F1);
    EXPECT_EQ(window.focusWidget(), window.picArrivals->gInvoices) << "no menu keeps the focus";
}

TEST_F(HelpTest, AMissingOrBrokenHelpFileIsTold)
{
    SetProgramFolder(Folder());
    HelpDesk desk;
    const auto ask = [&] {
        WhenFormShows<QMessageBox>([](QMessageBox& box) {
            EXPECT_TRUE(box.text().startsWith("The help file ")) << box.text().toStdString();
            Press(&box, Qt::Key_Return);
        });
        OpenHelp(HelpCommand::Context, 1);
        EXPECT_EQ(desk.Viewer(), nullptr);
    };
    ask();
    WriteFile(HelpFile(), "no help");
    ask();
}
