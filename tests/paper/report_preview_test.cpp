#include "support/report_designs.h"
#include "support/test.h"

#include <QStatusBar>

namespace {
class Preview : public testing::Test {
protected:
    Preview()
    {
        SetSettingsFolder(m_settings.path());
        CurrentPrinter().setPageSize(QPageSize(QPageSize::A4));
        ShowPreview(NameList(Numbered(300)));
        m_window = Previews().last();
        Shown(m_window);
    }
    ~Preview() override
    {
        ClosePreviews();
        SetSettingsFolder(QString());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { Press(View(), key, modifiers); }
    QWidget* View() const { return Find<PreviewView>(m_window, "picView"); }
    QString Status() const { return m_window->statusBar()->currentMessage(); }

    QTemporaryDir m_settings;
    QPointer<PreviewWindow> m_window;
};
} // namespace

TEST_F(Preview, KeysLeadThroughThePages)
{
    EXPECT_FALSE(m_window->isModal());
    EXPECT_EQ(m_window->windowTitle(), "Names");
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(m_window->CurrentPage(), 1);
    Key(Qt::Key_End);
    EXPECT_EQ(m_window->CurrentPage(), 5);
    EXPECT_FALSE(Find<QAction>(m_window, "mnuNextPage")->isEnabled());
    EXPECT_EQ(Find<QLabel>(m_window, "lblPages")->text(), " of 6 ");
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(m_window->CurrentPage(), 4);
    Key(Qt::Key_Home);
    EXPECT_EQ(m_window->CurrentPage(), 0);
    EXPECT_FALSE(Find<QAction>(m_window, "mnuPreviousPage")->isEnabled());

    Key(Qt::Key_G, Qt::ControlModifier);
    QTest::keyClicks(Find<QSpinBox>(m_window, "txtPage"), "3\r");
    EXPECT_EQ(m_window->CurrentPage(), 2);
    EXPECT_TRUE(Find<PreviewPage>(m_window, "picPage")->accessibleDescription().contains("Name 109"));
    EXPECT_TRUE(View()->hasFocus()) << "the page keys turn pages again";

    for (int presses = 0; presses < 20 && m_window->CurrentPage() == 2; ++presses)
        Key(Qt::Key_PageDown);
    EXPECT_EQ(m_window->CurrentPage(), 3) << "past the end of the page";
    Key(Qt::Key_PageUp);
    EXPECT_EQ(m_window->CurrentPage(), 2);
}

TEST_F(Preview, ZoomsByKeysAndFitsThePage)
{
    auto* zoom = Find<ComboBox>(m_window, "cboZoom");
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(zoom->Text(), "75 %");
    Key(Qt::Key_0, Qt::ControlModifier);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(m_window->Zoom(), 1.25);

    Key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(zoom->Text(), "Fit Page");
    EXPECT_LE(Find<PreviewPage>(m_window, "picPage")->height(), View()->height());
    const double before = m_window->Zoom();
    m_window->resize(500, 400);
    QCoreApplication::processEvents();
    EXPECT_LT(m_window->Zoom(), before);
    m_window->resize(900, 760);

    Pick(zoom, "50 %");
    EXPECT_EQ(m_window->Zoom(), 0.5);
}

TEST_F(Preview, SavesAPdfAndSaysWhenItCannot)
{
    QTemporaryDir folder;
    ScriptedAnswers answers;
    answers.ExpectSaveFile(folder.filePath("names"));
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(folder.filePath("names.pdf")));
    answers.ExpectLink(QUrl::fromLocalFile(folder.filePath("names.pdf")).toString());
    auto* told = Find<QLabel>(m_window, "lblSaved");
    EXPECT_TRUE(told->isVisible());
    told->setFocus();
    Press(told, Qt::Key_Tab);
    Press(told, Qt::Key_Return);

    const QString nowhere = folder.filePath("missing/names.pdf");
    answers.ExpectSaveFile(nowhere);
    answers.ExpectMessage("Unable to write to file " + nowhere, Icon::Critical);
    Key(Qt::Key_S, Qt::ControlModifier);
    answers.ExpectSaveFile("");
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(answers.Done());
}

TEST_F(Preview, PageSetupLaysOutAnewAndACancelledPrintPrintsNothing)
{
    Key(Qt::Key_End);
    ScriptedAnswers answers;
    answers.orientation = QPageLayout::Landscape;
    answers.ExpectPageSetup(true);
    Key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_window->Layout().Paper(), (ReportPaper{16838, 11906}));
    EXPECT_EQ(m_window->CurrentPage(), 0);
    EXPECT_EQ(m_window->Layout().Design().margins.left, 1440) << "the dialog starts from the report's margins";

    // What another preview has chosen meanwhile is not this one's.
    CurrentPrinter().setPageSize(QPageSize(QPageSize::A5));
    const QPageLayout other = CurrentPrinter().pageLayout();
    answers.ExpectPageSetup(false);
    Key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    answers.ExpectPrint(false);
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(Status().contains("handed"));
    EXPECT_EQ(CurrentPrinter().pageLayout(), other);

    answers.hasPrinter = false;
    answers.orientation = QPageLayout::Portrait;
    answers.ExpectPageSetup(true);
    Key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_window->Layout().Paper(), (ReportPaper{11906, 16838})) << "a PDF has paper without a printer";
    answers.Expect("No printer is installed. Do you want to save the document as a PDF instead?", Answer::Yes);
    answers.ExpectSaveFile("");
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(answers.Done());
}

TEST_F(Preview, EscClosesItAndItIsGone)
{
    ShowPreview(NameList({"Another"}));
    Shown(m_window);
    Key(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(m_window.isNull());
    EXPECT_EQ(Previews().size(), 1) << "the other one stays";
}
