#include "records/record_list.h"
#include "support/test.h"

namespace {

/// What is typed into a list: after "/" words that filter it, otherwise the start of a text to go to.
struct Typing {
    const char* keys;
    const char* shown; ///< the rows by number
    int row; ///< current afterwards; before it was row 3
    const char* order = DefaultOrder;
};
/// A list of six items, sorted by name, in a window with a box to search by.
class FindingRows : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        Run(QString::fromUtf8("INSERT INTO vendor (BusinessName, ContactName) VALUES ('Anchor', '30'), "
                              "('Bolt M4', '2 ÄXTE'), ('bolts & <nuts>', '0010'), ('Buoy', 'm4'), "
                              "('Cleat' || char(13, 10) || '1/2', '2'), ('Öse', '20 bolt')"));
        list->SetColumns({
            {"businessname", "Name", 1800, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder},
            {"contactname", "Code", 1800, CellAlign::LeftCenter, CellAlign::LeftCenter, "contactname"},
        });
        window.setLayout(column({box, list, new QPushButton}));
        window.resize(400, 400);
        list->LetDownEnter({box});
        QObject::connect(list, &RecordList::Sorted, list, [this] { Load(list->Row(), 0); });
        Load(3, 0);
        Shown(&window);
        list->setFocus();
    }
    void Load(int row, qint64 selectId)
    {
        list->Load(
            list->Ordered("SELECT id, businessname, contactname FROM vendor WHERE id <> 1 ", "ORDER BY businessname"),
            row, selectId);
    }
    /// Keys, one after the other, go to whatever has the focus.
    static void TypeKeys(const QString& keys)
    {
        for (const QChar key : keys)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, key, Qt::NoModifier);
    }
    QString ShownRows() const
    {
        QString rows;
        for (int place = 0; place < list->model()->rowCount(); ++place)
            for (int row = 1; row < list->Rows(); ++row)
                if (list->model()->index(place, 0).data(Qt::UserRole) == list->RowData(row))
                    rows += QString::number(row);
        return rows;
    }
    TextBox* Filter() { return Find<TextBox>(&window, "txtFilter"); }

    QWidget window;
    TextBox* box = new TextBox;
    RecordList* list = new RecordList;
};

class TypingTest : public FindingRows, public ::testing::WithParamInterface<Typing> { };

TEST_P(TypingTest, WhatIsTypedLeavesTheListItself)
{
    list->SetTag(GetParam().order);
    Load(3, 0);
    const QList<QStringList> rows = GridRows(list);
    TypeKeys(QString::fromUtf8(GetParam().keys));
    EXPECT_EQ(ShownRows(), GetParam().shown) << GetParam().keys;
    EXPECT_EQ(list->Row(), GetParam().row);
    EXPECT_EQ(GridRows(list), rows);
    EXPECT_EQ(list->currentIndex().data(Qt::UserRole).toLongLong(), list->CurrentRowData()) << "the row that shows";
}

INSTANTIATE_TEST_SUITE_P(Keys, TypingTest,
    ::testing::Values(Typing{"/BOLT", "236", 3}, Typing{"/bolt m4", "2", 2}, Typing{"/m4 b", "24", 4},
        Typing{"/  ", "123456", 3}, Typing{"/öS", "6", 6}, Typing{"/äx", "2", 2}, Typing{"/>00", "", 0},
        Typing{"/> 00", "3", 3}, Typing{"/anch", "1", 1}, Typing{"/zz", "", 0}, Typing{"b", "123456", 4},
        Typing{"bo", "123456", 2}, Typing{"BB", "123456", 2}, Typing{"bolts", "123456", 3}, Typing{"ö", "123456", 6},
        Typing{"cleat 1", "123456", 5}, Typing{"an", "123456", 1}, Typing{"zb", "123456", 3}, Typing{" ", "123456", 3},
        Typing{"2", "123456", 4, "contactname"}, Typing{"a", "123456", 3, "contactname"}));

TEST_F(FindingRows, AFilterStandsUntilEscAndKeepsTheRulesOfSelection)
{
    TypeKeys("/bolt");
    Press(Filter(), Qt::Key_Down);
    EXPECT_TRUE(list->hasFocus());
    Tab();
    Tab();
    EXPECT_EQ(window.focusWidget()->accessibleName(), "Close the filter");
    list->setFocus();
    Press(list, Qt::Key_Down);
    EXPECT_EQ(list->Row(), 6) << "to the next row that shows";
    Press(list, Qt::Key_Home);
    EXPECT_EQ(list->Row(), 2);
    Press(list, Qt::Key_End);
    EXPECT_EQ(list->Row(), 6);
    DoubleClickRow(list, 2); // of those that show
    EXPECT_EQ(list->MouseRow(), 3);

    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(list->viewport(), &byKey);
    const QList<QAction*> titles = list->findChild<QMenu*>()->actions().last()->menu()->actions();
    EXPECT_TRUE(titles.at(0)->isChecked());
    titles.at(1)->trigger(); // as a click on the title
    EXPECT_EQ(ShownRows(), "134") << "0010, 2 ÄXTE, 20 bolt";
    EXPECT_EQ(list->Row(), 3) << "sorting keeps the row number";
    Run("DELETE FROM vendor WHERE ContactName LIKE '2%bolt'");
    Load(list->Row() + 1, 0);
    EXPECT_EQ(list->Row(), 3) << "the last row that shows";
    const qint64 hidden = Single("SELECT id FROM vendor WHERE BusinessName = 'Anchor'").toLongLong();
    Load(1, hidden);
    EXPECT_EQ(list->CurrentRowData(), hidden) << "a record that was looked for shows all the same";
    Load(1, 0);
    EXPECT_EQ(ShownRows(), "13");

    Press(list, Qt::Key_Escape);
    EXPECT_FALSE(Filter()->isVisible());
    EXPECT_EQ(ShownRows(), "12345");
    EXPECT_EQ(list->Row(), 1);

    list->SelectRow(4);
    TypeKeys("/zz");
    EXPECT_EQ(list->Row(), 0);
    Press(Filter(), Qt::Key_Escape);
    EXPECT_EQ(list->Row(), 4) << "where it was";
}

TEST_F(FindingRows, RowsThatCodeAddsOrChangesOneByOneLiftTheFilter)
{
    const auto add = [this] {
        Run("INSERT INTO vendor (BusinessName) VALUES ('Zinc')");
        Load(1, 0);
    };
    const std::function<void()> changes[] = {[this, add] { list->ShowAdded(add); },
        [this] { list->SetRows(list->Rows() + 1); }, [this] { list->SetTextMatrix(1, 0, "Anker"); }};
    for (const auto& change : changes) {
        TypeKeys("/bolt");
        change();
        EXPECT_EQ(list->model()->rowCount(), list->Rows() - 1);
        EXPECT_FALSE(Filter()->isVisible());
        EXPECT_TRUE(list->hasFocus());
    }
    TypeKeys("/bolt");
    list->SetRows(3);
    EXPECT_EQ(ShownRows(), "2");
}

TEST_F(FindingRows, DownFromASearchBoxGoesIntoTheRowsAndARowIsCopiedWithItsColumnsPartedByTabs)
{
    list->SetRow(0);
    Press(box, Qt::Key_Down);
    EXPECT_TRUE(list->hasFocus());
    EXPECT_EQ(list->Row(), 1);
    list->SelectRow(5);
    Press(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Cleat 1/2\t2");
}

} // namespace
