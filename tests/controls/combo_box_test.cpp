#include "controls/combo_box.h"
#include "support/test.h"

#include <QListView>

namespace {

class Combo : public testing::Test {
protected:
    Combo() { combo.setObjectName("cboVendor"); }

    ComboBox combo;
    QSignalSpy clicks{&combo, &ComboBox::Click};
};

TEST_F(Combo, FillingSelectsNothingAndFiresNothing)
{
    combo.AddItem("N/A", 1);
    combo.AddItems({{"Able", 2}, {"Baker", 3}});
    EXPECT_EQ(combo.ListCount(), 3);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_THROW(combo.SelectedData(), RuntimeError);
    combo.SetListIndex(1);
    combo.AddItem("Charlie", 4);
    EXPECT_EQ(combo.ListIndex(), 1) << "the selection outlives further entries";
    combo.Clear();
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.AddItem("again", 5);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(clicks.size(), 1) << "of SetListIndex alone";
}

TEST_F(Combo, CodeFiresClickForAnotherEntryOnly)
{
    combo.AddItems({{"Able", -7}, {"Baker", 3000000000}, {"able", 9}, {"Baker", 11}});
    for (int time = 0; time < 2; ++time)
        combo.SetListIndex(0);
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_EQ(combo.SelectedData(), -7);
    SelectComboByText(&combo, "Baker");
    EXPECT_EQ(combo.ListIndex(), 1) << "the first of two";
    SelectComboByText(&combo, "Bak");
    SelectComboByData(&combo, 12345);
    EXPECT_EQ(combo.ListIndex(), 1) << "no match: the selection stays";
    EXPECT_EQ(combo.SelectedData(), 3000000000);
    SelectComboByData(&combo, 9);
    EXPECT_EQ(combo.Text(), "able");
    combo.SetListIndex(-1);
    EXPECT_EQ(clicks.size(), 4);
    EXPECT_THROW(combo.SetListIndex(4), RuntimeError);
    EXPECT_THROW(combo.SetListIndex(-2), RuntimeError);
    EXPECT_THROW(combo.ItemData(-1), RuntimeError);
    EXPECT_EQ(clicks.size(), 4);
}

TEST_F(Combo, TheUsersPicksAndStepsFireOneClickEach)
{
    combo.AddItems({{"Able", 1}, {"Baker", 2}, {"Charlie", 3}});
    Shown(&combo);
    EXPECT_EQ(combo.ListIndex(), -1);
    QStringList chosen;
    QObject::connect(&combo, &ComboBox::Click, &combo, [&] { chosen.append(combo.Text()); });
    Pick(&combo, "Baker");
    Pick(&combo, "Baker");
    Press(&combo, Qt::Key_Down);
    Press(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, 'a');
    EXPECT_EQ(chosen, QStringList({"Baker", "Baker", "Charlie", "Able"})) << "no step past the end";
    EXPECT_EQ(combo.SelectedData(), 1);
}

TEST_F(Combo, AHundredThousandEntriesOpenAndSearchAtOnce)
{
    QList<std::pair<QString, qint64>> entries;
    for (int i = 0; i < 100000; ++i)
        entries.append({QString("%1 a rather long name of an item that no form has the width for").arg(i), i});
    entries.append({"zebra", 100000});
    Shown(&combo);
    const int width = combo.sizeHint().width();
    QElapsedTimer timer;
    timer.start();
    combo.AddItems(entries);
    EXPECT_EQ(combo.sizeHint().width(), width);
    combo.showPopup();
    QApplication::processEvents();
    EXPECT_LT(combo.view()->window()->height(), 1000);
    combo.hidePopup();
    QTest::keyClick(&combo, 'z');
    EXPECT_EQ(combo.SelectedData(), 100000);
    SelectComboByData(&combo, 99999);
    EXPECT_EQ(combo.ListIndex(), 99999);
    EXPECT_LT(timer.elapsed(), 2000) << "generous for slow builds";
}

TEST_F(Combo, TheWheelChangesNothingWithoutTheFocus)
{
    QWidget window;
    ComboBox list(&window);
    QLineEdit other(&window);
    list.AddItems({{"Able", 1}, {"Baker", 2}});
    list.SetListIndex(0);
    Shown(&window);
    const auto turn = [&] {
        QWheelEvent wheel({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &wheel);
    };
    other.setFocus();
    turn();
    EXPECT_EQ(list.ListIndex(), 0);
    list.setFocus();
    turn();
    EXPECT_EQ(list.ListIndex(), 1);
}

} // namespace
