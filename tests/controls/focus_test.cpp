#include "controls/focus.h"
#include "support/test.h"

#include <QDateEdit>
#include <QMainWindow>
#include <QToolBar>

namespace {

class Focus : public testing::Test {
protected:
    Focus()
    {
        page->setLayout(column({txtName, txtPhone, cboList, dtDate}));
        otherPage->setLayout(column({new QLabel("nothing to focus")}));
        auto* centre = new QWidget;
        centre->setLayout(column({page, otherPage}));
        otherPage->hide();
        window.setCentralWidget(centre);
        QMenu* menu = window.menuBar()->addMenu("&Edit");
        menu->addAction("&Copy", &window, [this] { events << "copy"; });
        bar = window.addToolBar("Tools");
        bar->addAction("Find", &window, [this] { events << "find"; });
        cboList->AddItems({{"Able", 1}, {"Baker", 2}});
        dtDate->SetCheckBox(true);

        const std::pair<QWidget*, QString> watched[] = {
            {txtName, "name"}, {txtPhone, "phone"}, {cboList, "list"}, {dtDate, "date"}};
        for (const auto& [control, name] : watched) {
            OnFocusLeft(control, [this, name = name] { events << name + " left"; });
            OnFocusGained(control, [this, name = name] { events << name + " gained"; });
        }
        Shown(&window);
        txtName->setFocus();
        events.clear();
    }

    QMainWindow window;
    QToolBar* bar = nullptr;
    QStringList events;
    QWidget *page = new QWidget, *otherPage = new QWidget;
    TextBox *txtName = new TextBox, *txtPhone = new TextBox;
    ComboBox* cboList = new ComboBox;
    DatePicker* dtDate = new DatePicker;
};

TEST_F(Focus, LeavesOneControlBeforeItComesToTheNextAndOneOfPartsAsAWhole)
{
    Tab();
    Click(txtName);
    EXPECT_EQ(events, QStringList({"name left", "phone gained", "phone left", "name gained"}));
    dtDate->setFocus();
    events.clear();
    Tab();
    EXPECT_EQ(QApplication::focusWidget(), dtDate->findChild<QDateEdit*>());
    EXPECT_EQ(events, QStringList());
    Tab();
    EXPECT_EQ(events.value(0), "date left");
}

TEST_F(Focus, ListsMenusAndToolbarsAreNoLeaving)
{
    Tab();
    Tab();
    ASSERT_TRUE(cboList->hasFocus());
    events.clear();
    cboList->showPopup();
    EXPECT_TRUE(cboList->view()->isVisible());
    QTest::keyClick(cboList->view(), Qt::Key_Return);
    QMenu menu;
    menu.addAction("Paste");
    menu.popup(window.mapToGlobal(QPoint(10, 10)));
    QApplication::processEvents();
    menu.close();
    QApplication::processEvents();
    EXPECT_EQ(events, QStringList());

    QTest::keyClick(cboList, Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
    Click(bar->widgetForAction(bar->actions().front()));
    EXPECT_EQ(events, QStringList({"copy", "find"}));
    EXPECT_TRUE(cboList->hasFocus());
}

TEST_F(Focus, AnotherWindowInFrontIsNoLeavingUnlessTheFocusIsSetElsewhereMeanwhile)
{
    QWidget other;
    Shown(&other);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    WhenFormShows<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    MsgBox("Saved.", Icon::Information);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(txtName->hasFocus());
    EXPECT_EQ(events, QStringList());

    WhenFormShows<QMessageBox>([this](QMessageBox& box) {
        txtPhone->setFocus();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    MsgBox("The name is wrong.", Icon::Critical);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(events, QStringList({"name left", "phone gained"}));
}

TEST_F(Focus, SwitchingThePanelAwayOrTheControlOffIsLeavingOnceAndClosingTheWindowIsNot)
{
    page->hide();
    otherPage->show();
    QApplication::processEvents();
    EXPECT_EQ(events, QStringList({"name left"}));
    otherPage->hide();
    page->show();
    txtName->setFocus();
    EXPECT_EQ(events, QStringList({"name left", "name gained"}));

    events.clear();
    txtName->setEnabled(false);
    EXPECT_EQ(events, QStringList({"name left", "phone gained"}));
    window.close();
    QApplication::processEvents();
    EXPECT_EQ(events.size(), 2);
}

TEST_F(Focus, AHandlerMaySendTheFocusBack)
{
    int tries = 0;
    OnFocusLeft(txtName, [&] {
        if (++tries == 1)
            txtName->setFocus();
    });
    Tab();
    EXPECT_TRUE(txtName->hasFocus());
    EXPECT_EQ(tries, 1);
}

} // namespace
