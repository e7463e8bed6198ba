#include "controls/form.h"
#include "controls/message_box.h"
#include "support/test.h"

#include <QMainWindow>

namespace {

/// Its controls are laid out in another order than they are declared in.
class frmSample : public Form {
public:
    CONTROL(TextBox, txtName);
    CONTROL_AT(ComboBox, cboField, 3);
    CONTROL(DatePicker, dtDue);
    CONTROL(MultiLineTextBox, txtNotes);
    CONTROL(QCheckBox, chkTaxed);
    CONTROL(QPushButton, cmdOther);
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdCancel);

    frmSample()
        : Form("frmSample", "Sample", nullptr)
    {
        for (auto [button, text] : {std::pair<QAbstractButton*, const char*>(chkTaxed, "&Taxed"), {cmdOther, "&Other"},
                 {cmdOK, "OK"}, {cmdCancel, "Cancel"}}) {
            button->setText(text);
            On(button, &QPushButton::clicked, this, [this, button = button] { done << button->text(); });
        }
        dtDue->SetCheckBox(true);
        setLayout(column({
            instructions("Instructions - fill in the form and then click OK."),
            row({stretch(), cmdOK, cmdCancel, cmdOther}),
            fields({{"Not&es:", txtNotes}, {"&Due:", dtDue}, {"&Name:", txtName},
                {"&Field:", row({cboField_3, chkTaxed})}}),
        }));
        cmdOK->setDefault(true);
        SetCancelButton(cmdCancel);
    }

    QStringList done;
};

TEST(Forms, AnAccessKeyClicksAButtonButNotBehindABoxThatOpenedMeanwhile)
{
    frmSample form;
    Shown(&form);
    const auto strike = [&form] { QTest::keyClick(&form, Qt::Key_O, Qt::AltModifier); };
    strike();
    strike();
    QTest::qWait(200);
    EXPECT_EQ(form.done, QStringList{"&Other"});
    WhenFormShows<QMessageBox>([](QMessageBox& box) {
        QTest::qWait(200);
        Press(&box, Qt::Key_Return);
    });
    strike();
    MsgBox("Saved.", Icon::None);
    EXPECT_EQ(form.done, QStringList{"&Other"});
}

TEST(Forms, AClickThatComesAfterTheFormHasClosedDoesNothing)
{
    frmSample form;
    Shown(&form);
    const auto clickLate = [&form] {
        const QPointF middle = QRectF(form.cmdOK->rect()).center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(form.cmdOK,
                new QMouseEvent(
                    type, middle, form.cmdOK->mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        QCoreApplication::processEvents();
    };
    clickLate();
    form.accept();
    clickLate();
    EXPECT_EQ(form.done, QStringList{"OK"});
    Shown(&form);
    EXPECT_TRUE(form.txtName->hasFocus());
    clickLate();
    EXPECT_EQ(form.done, QStringList({"OK", "OK"}));
}

TEST(Forms, EnterRunsTheDefaultButtonOrTheButtonWithTheFocus)
{
    frmSample form;
    form.dtDue->SetValue(QDateTime(QDate(2003, 7, 4), QTime(0, 0)));
    CheckForm(form);
    Press(form.txtName, Qt::Key_Return);
    Press(form.cboField_3, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(form.done, QStringList({"OK", "OK"}));
    Press(form.cmdOther, Qt::Key_Return);
    EXPECT_EQ(form.done.last(), "&Other");
    Press(form.txtNotes, Qt::Key_Return);
    EXPECT_EQ(form.done.size(), 3) << "a box of several lines keeps Enter for itself";
    SetDefaultButton(form.cmdOther, true);
    Press(form.txtName, Qt::Key_Return);
    EXPECT_EQ(form.done.last(), "&Other");
    SetDefaultButton(form.cmdOther, false);
    Press(form.txtName, Qt::Key_Return);
    EXPECT_EQ(form.done.size(), 4) << "no default button: Enter runs none";
}

TEST(Forms, EscClicksTheCancelButtonAndTheFormCloses)
{
    frmSample form;
    WhenFormShows<frmSample>([](frmSample& shown) { Press(shown.txtName, Qt::Key_Escape); });
    form.ShowModal();
    EXPECT_EQ(form.done, QStringList({"Cancel"}));
    EXPECT_EQ(form.result(), QDialog::Rejected);
    WhenFormShows<frmSample>([](frmSample& shown) { shown.close(); });
    form.ShowModal();
    EXPECT_EQ(form.done.size(), 1) << "the window's close button does not run it";
}

TEST(Forms, AnErrorInAHandlerEndsTheProgramAndNothingElseRuns)
{
    frmSample form;
    ExpectedEnd end;
    On(form.cmdOther, &QPushButton::clicked, form.cmdOther, [] { throw TypeMismatch(); });
    WhenFormShows<frmSample>([](frmSample& shown) { Click(shown.cmdOther); });
    form.ShowModal();
    EXPECT_EQ(end.Number(), 13);
    form.show();
    form.cmdOK->click();
    EXPECT_EQ(form.done, QStringList({"&Other"}));
}

class SamplePanel : public Panel {
public:
    CONTROL(TextBox, txtBarCode);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(QPushButton, cmdFind);

    explicit SamplePanel(QWidget* parent)
        : Panel("picSample", parent)
    {
        cmdAdd->setText("&Add");
        cmdFind->setText("&Find");
        setLayout(column({head("Sample", "Instructions - you are currently viewing a sample."), row({cmdFind, cmdAdd}),
            fields({{"&Bar code:", txtBarCode}})}));
    }
};

TEST(Panels, EnterRunsTheirDefaultButton)
{
    QMainWindow window;
    auto* panel = new SamplePanel(&window);
    window.setCentralWidget(panel);
    QSignalSpy added(panel->cmdAdd, &QPushButton::clicked), found(panel->cmdFind, &QPushButton::clicked);
    Shown(&window);
    Press(panel->txtBarCode, Qt::Key_Return);
    EXPECT_EQ(added.size(), 0);
    SetDefaultButton(panel->cmdFind, true);
    SetDefaultButton(panel->cmdAdd, true);
    Press(panel->txtBarCode, Qt::Key_Return);
    EXPECT_EQ(added.size(), 1);
    EXPECT_FALSE(panel->cmdFind->isDefault());
    Press(panel->cmdFind, Qt::Key_Return);
    EXPECT_EQ(found.size(), 1);
    SetDefaultButton(panel->cmdAdd, false);
    Press(panel->txtBarCode, Qt::Key_Return);
    EXPECT_EQ(added.size(), 1);
    CheckForm(*panel);
    EXPECT_EQ(panel->Title(), "Sample");
    EXPECT_TRUE(panel->TopIcon()->isVisible());
}

TEST(Panels, TakeNoClickOfTheGestureThatBroughtThem)
{
    QWidget window;
    Panel panel("picSample", &window);
    panel.setLayout(new QVBoxLayout);
    auto* button = new QPushButton("Delete");
    panel.layout()->addWidget(button);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    Shown(&window);
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(60'000);
    const QPoint middle = button->rect().center();
    // The double click that Qt makes of the second press, though the first one was not on this panel; and a third
    // click.
    QMouseEvent second(QEvent::MouseButtonDblClick, middle, button->mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(button, &second);
    QTest::mouseRelease(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    QApplication::setDoubleClickInterval(1);
    QTest::qWait(20);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QCoreApplication::sendEvent(button, &second);
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 2) << "a double click of its own";
    QApplication::setDoubleClickInterval(interval);
}

TEST(MessageBoxes, AYesNoQuestionMustBeAnsweredAndEscCancelsWhereThereIsACancel)
{
    WhenFormShows<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.objectName(), "MsgBox");
        EXPECT_EQ(box.windowTitle(), "Tavrin Inventory");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        EXPECT_TRUE(box.isVisible());
        Click(box.button(QMessageBox::No));
    });
    EXPECT_EQ(MsgBox("Delete <b>item</b>?", Icon::Question, Buttons::YesNo), Answer::No);

    for (const Buttons buttons : {Buttons::YesNoCancel, Buttons::OkCancel}) {
        WhenFormShows<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(MsgBox("Go on?", Icon::Exclamation, buttons), Answer::Cancel);
    }
    WhenFormShows<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Backup");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    MsgBox("Done.", Icon::Information, "Backup");
}

} // namespace
