#include "controls/scan_watch.h"
#include "support/test.h"

namespace {

const QString Known = "Ab 12/34-56";
const QString UnknownEan = "4006381333931";
const QString Unknown = "C-1234567";

/// A screen with a control of each kind.
class ScanWatching : public testing::Test {
protected:
    ScanWatching()
    {
        cboList->AddItems({{"Able", 1}, {"Baker", 2}, {"4 for 3", 3}, {"Carol", 4}});
        cboList->SetListIndex(1);
        dtDate->SetCheckBox(true);
        dtDate->SetValue(QDate(2026, 3, 14).startOfDay());
        grid->SetRows(5);
        grid->SelectRow(3);
        txtName->setText("Ann Carter");
        txtNotes->SetText("To the back door");
        KeepCodesOut({txtPrice});
        window.setLayout(
            column({txtCode, cmdLookUp, txtName, txtPrice, txtNotes, cboList, dtDate, chkPaid, cmdOther, grid}));
        On(cmdLookUp, &QPushButton::clicked, &window, [this] {
            events << txtCode->text();
            txtCode->clear();
        });
        On(txtCode, &QLineEdit::returnPressed, cmdLookUp, &QPushButton::click);
        On(cmdOther, &QPushButton::clicked, &window, [this] { events << "other"; });
        On(grid, &FlexGrid::DblClick, &window, [this] { events << "opened"; });
        On(dtDate, &DatePicker::Change, &window, [this] { events << "date"; });
        On(cboList, &ComboBox::Click, &window, [this] { events << "list"; });
        On(&StatusLine::Get(), &StatusLine::Told, &window, [this](const QString& text) { events << text; });
        Watch();
        Shown(&window);
    }
    void Watch()
    {
        TakeScans({&window, txtCode, cmdLookUp, [](const QString& code) { return code == Known; },
            [this] { events << "unknown"; }});
    }

    QStringList State() const
    {
        return {txtName->text(), QString::number(txtName->isModified()), txtPrice->text(),
            QString::number(txtPrice->cursorPosition()), txtNotes->Text(),
            QString::number(txtNotes->textCursor().position()), QString::number(txtNotes->document()->isModified()),
            cboList->Text(), dtDate->Value()->toString(Qt::ISODate), QString::number(chkPaid->isChecked()),
            QString::number(grid->Row())};
    }
    QWidget* DatePart() const { return dtDate->findChild<QDateEdit*>(); }
    QList<QWidget*> OtherThanTexts() const { return {cboList, DatePart(), chkPaid, cmdOther, grid}; }

    QStringList events;
    QWidget window;
    TextBox* txtCode = new TextBox;
    QPushButton* cmdLookUp = new QPushButton;
    TextBox* txtName = new TextBox;
    TextBox* txtPrice = new TextBox;
    MultiLineTextBox* txtNotes = new MultiLineTextBox;
    ComboBox* cboList = new ComboBox;
    DatePicker* dtDate = new DatePicker;
    QCheckBox* chkPaid = new QCheckBox;
    QPushButton* cmdOther = new QPushButton;
    FlexGrid* grid = new FlexGrid;
};

TEST_F(ScanWatching, AKnownCodeGoesToTheBarCodeBoxAndLeavesNoTraceInAnyControl)
{
    const QStringList before = State();
    for (QWidget* control : QList<QWidget*>{txtName, txtPrice, txtNotes} + OtherThanTexts()) {
        control->setFocus();
        ScannerTypes(Known);
        EXPECT_EQ(events, QStringList{Known}) << control->metaObject()->className();
        EXPECT_EQ(State(), before) << control->metaObject()->className();
        EXPECT_TRUE(txtCode->hasFocus());
        events.clear();
    }
    cboList->setFocus();
    cboList->showPopup();
    ScannerTypes(Known);
    EXPECT_EQ(events, QStringList{Known});
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(cboList->view()->isVisible());
}

TEST_F(ScanWatching, AnUnknownCodeIsTypedInATextBoxAndToldOfElsewhere)
{
    for (const auto& [box, code, isTyped] : {std::tuple(txtName, UnknownEan, true), std::tuple(txtPrice, Unknown, true),
             std::tuple(txtPrice, QString("4006381333932"), true), std::tuple(txtPrice, UnknownEan, false),
             std::tuple(txtPrice, QString("12345"), true)}) {
        box->setText("12.50");
        box->setFocus();
        box->setSelection(5, -4);
        ScannerTypes(code);
        EXPECT_EQ(box->text(), isTyped ? "1" + code : "12.50") << code.toStdString();
        EXPECT_EQ(box->selectedText(), isTyped ? "" : "2.50");
        EXPECT_EQ(box->cursorPosition(), isTyped ? code.size() + 1 : 1);
        EXPECT_EQ(events, isTyped ? QStringList() : QStringList{"unknown"});
        events.clear();
    }
    const QStringList before = State();
    for (QWidget* control : OtherThanTexts()) {
        control->setFocus();
        ScannerTypes(Unknown);
        EXPECT_EQ(events, QStringList{"unknown"}) << control->metaObject()->className();
        EXPECT_EQ(State(), before) << control->metaObject()->className();
        EXPECT_TRUE(control->hasFocus());
        events.clear();
    }
}

TEST_F(ScanWatching, WhatIsTypedByHandDoesWhatItAlwaysDoes)
{
    txtName->setFocus();
    txtName->selectAll();
    HandTypes(Known + "\n");
    EXPECT_EQ(txtName->text(), Known);
    cboList->setFocus();
    HandTypes("c");
    EXPECT_TRUE(QTest::qWaitFor([this] { return cboList->currentIndex() == 3; }));
    chkPaid->setFocus();
    HandTypes(" ");
    EXPECT_TRUE(QTest::qWaitFor([this] { return chkPaid->isChecked(); }));
    cmdOther->setFocus();
    HandTypes(" ");
    EXPECT_TRUE(QTest::qWaitFor([this] { return events.contains("other"); }));
    grid->setFocus();
    HandTypes("123456\n");
    EXPECT_EQ(events, (QStringList{"list", "other", "opened"}));
    EXPECT_EQ(grid->Row(), 3);

    txtPrice->setFocus();
    ScannerTypes("Ab 12");
    EXPECT_EQ(txtPrice->text(), "Ab 12") << "too short for a code";
}

TEST_F(ScanWatching, AProgramThatIsBusyTellsScansFromKeysByTheirOwnTime)
{
    On(txtName, &QLineEdit::textChanged, &window, [] { QTest::qSleep(40); });
    txtName->setFocus();
    ScannerTypes(Known);
    EXPECT_EQ(events, QStringList{Known});
    txtPrice->setFocus();
    HandTypes(Known + "\n");
    EXPECT_EQ(txtPrice->text(), Known) << "typed ahead, and taken in all at once";

    events.clear();
    grid->setFocus();
    ScannerTypes("Ab 1\a2/34-56");
    EXPECT_EQ(events, QStringList{Known}) << "a key was held up";
    txtName->clear();
    txtName->setFocus();
    ScannerTypes("Ab \a12\a/3\a4-56");
    EXPECT_EQ(txtName->text(), Known) << "too many of them";
}

TEST_F(ScanWatching, UndoGoesOnBeforeTheScan)
{
    txtPrice->setFocus();
    HandTypes("12.50");
    ScannerTypes(Known);
    EXPECT_EQ(txtPrice->text(), "12.50");
    txtPrice->undo();
    EXPECT_EQ(txtPrice->text(), "");

    txtNotes->setFocus();
    txtNotes->selectAll();
    ScannerTypes(Known);
    EXPECT_EQ(txtNotes->textCursor().selectedText(), "To the back door");
    EXPECT_FALSE(txtNotes->document()->isUndoAvailable());
    txtNotes->setFocus();
    txtNotes->moveCursor(QTextCursor::End);
    HandTypes("!");
    ScannerTypes(Known);
    EXPECT_EQ(txtNotes->Text(), "To the back door!");
    EXPECT_FALSE(txtNotes->document()->isRedoAvailable());
}

TEST_F(ScanWatching, NoScanAnswersAMessageBox)
{
    for (const auto& [ask, told] : {std::pair<std::function<void()>, QString>(
                                        [this] {
                                            const Answer answer = MsgBox("Sure?", Icon::Question, Buttons::YesNo);
                                            events << (answer == Answer::No ? "No" : "Yes");
                                        },
                                        "Answer the question first, then scan again."),
             {[] { MsgBox("Saved.", Icon::None); }, "Close the message first, then scan again."}}) {
        WhenFormShows<QMessageBox>([&, told = told](QMessageBox& box) {
            for (const QString& code : {QString("yn y123"), Known, QString("n1"), QString("y")}) {
                ScannerTypes(code);
                QTest::qWait(50);
                EXPECT_TRUE(box.isVisible());
                EXPECT_EQ(events, QStringList{told});
                events.clear();
            }
            HandTypes(box.button(QMessageBox::No) ? "n" : "\n");
            EXPECT_TRUE(QTest::qWaitFor([&box] { return !box.isVisible(); }));
        });
        ask();
        EXPECT_EQ(events.removeAll("No"), told.startsWith("Answer") ? 1 : 0);
    }
}

TEST_F(ScanWatching, AScanClosesTheBoxOfTheLastScanAndGoesOn)
{
    for (const QString& code : {Known, Unknown}) {
        WhenFormShows<QMessageBox>([&](QMessageBox& box) {
            ScannerTypes(code);
            EXPECT_FALSE(box.isVisible());
            // The scanner does not wait for the program.
            ScannerTypes(Known);
        });
        ScanMsgBox("Item not found.", Icon::Critical);
        EXPECT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
        EXPECT_EQ(events, (QStringList{code, Known}));
        events.clear();
    }
}

TEST_F(ScanWatching, AFormThatAClickOpensRightBehindAScanIsClosedAsWellAndHoldsNoKeys)
{
    WhenFormShows<Form>([this](Form&) {
        ScannerTypes(Known);
        // The loop of the form that is closed runs until its next turn.
        Form late("frmLate", {}, &window);
        WhenDialogShows(
            "late", [&](QDialog* dialog) { return dialog == &late; }, nullptr);
        QTimer::singleShot(2000, &late, [&late] {
            ADD_FAILURE() << "held up";
            late.reject();
        });
        late.ShowModal();
    });
    Form("frmEarly", {}, &window).ShowModal();
    EXPECT_TRUE(QTest::qWaitFor([this] { return events == QStringList{Known}; }));
}

TEST_F(ScanWatching, WhereNoScreenTakesScansEnterNeitherSavesNorOpensAnything)
{
    Form form("frmOther", {}, nullptr);
    form.setLayout(column({txtName, cboList, chkPaid, grid, cmdOther}));
    cmdOther->setDefault(true);
    WhenFormShows<Form>([&](Form&) {
        const QStringList before = State();
        for (QWidget* control : QList<QWidget*>{cboList, chkPaid, grid, cmdOther}) {
            control->setFocus();
            ScannerTypes(Known);
        }
        EXPECT_EQ(State(), before);
        EXPECT_EQ(events, QStringList(4, "Close this form first, then scan again."));
        txtName->FocusAll();
        ScannerTypes("4006381333931");
        EXPECT_EQ(txtName->text(), "4006381333931");
        EXPECT_EQ(events.takeLast(), "The code was typed. Press Enter to go on.");
        ScannerTypes("Hexagon");
        EXPECT_EQ(events.takeLast(), "other") << "a text that is no code is typed fast by others, too";
        form.reject();
    });
    form.ShowModal();
}

TEST_F(ScanWatching, AKeyThatIsHeldActsOnceButGoesOnInATextBox)
{
    On(grid, &FlexGrid::DblClick, &window, [] { MsgBox("Saved.", Icon::None); });
    grid->setFocus();
    WhenFormShows<QMessageBox>([](QMessageBox& box) {
        RepeatKey(Qt::Key_Return);
        EXPECT_TRUE(box.isVisible());
        HandTypes("\n");
    });
    HoldKey(Qt::Key_Return);
    EXPECT_EQ(events, QStringList{"opened"});

    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    txtNotes->SetText({});
    txtNotes->setFocus();
    HoldKey(Qt::Key_Return);
    RepeatKey(Qt::Key_Return);
    EXPECT_EQ(txtNotes->toPlainText(), "\n\n");
}

TEST_F(ScanWatching, WithAGapOfZeroKeysAreJustKeys)
{
    SaveConfig("Scan Gap", "0");
    Watch();
    txtPrice->setFocus();
    ScannerTypes(Known);
    EXPECT_EQ(txtPrice->text(), Known);
    grid->setFocus();
    ScannerTypes(Known);
    EXPECT_EQ(events, QStringList{"opened"});

    SaveConfig("Scan Gap", "200");
    Watch();
    HandTypes(Known + "\n");
    EXPECT_EQ(events, (QStringList{"opened", Known})) << "a slow scanner";
}

} // namespace
