#include "invoice_page_fixture.h"
#include "invoicing/add_order_item.h"
#include "invoicing/customer_search.h"
#include "invoicing/item_quantity.h"

#include <QPaintEvent>

#include <utility>

namespace {

const QString Brush = "4006381333931";
const QString Screws = "036000291452"; // stored as a UPC
const QString Nobodys = "4012345678901";

/// A scanner over the invoice page, and over its dialogs and boxes as they really show.
class Scans : public InvoicePageTest {
protected:
    void SetUp() override
    {
        InvoicePageTest::SetUp();
        brush = Item("Brush").Barcode(Brush).Stock(100).Price("2.50").Add();
        Item("Screws").Barcode(Screws).Stock(100).Price("3").Add();
        QObject::connect(
            &StatusLine::Get(), &StatusLine::Told, &receiver, [this](const QString& text) { told = text; });
        QObject::connect(page, &InvoicePage::LinesCounted, &receiver, [this](const QString& text) { scanLine = text; });
        OpenNew();
    }
    Table Lines() const { return Rows("SELECT quantity FROM invoiceline ORDER BY id"); }
    /// Lets what is on its way arrive.
    bool Arrives(const Table& lines)
    {
        return QTest::qWaitFor([&] { return Lines() == lines; }, 2000);
    }
    void SetFocus(QWidget* control)
    {
        control->setFocus();
        QCoreApplication::processEvents();
    }
    /// The next message box gets the code as its answer, and closes or not.
    void ScanAtBox(const QString& code, bool closes)
    {
        WhenFormShows<QMessageBox>([=](QMessageBox& box) {
            ScannerTypes(code);
            EXPECT_NE(box.isVisible(), closes);
            if (!closes)
                box.done(QMessageBox::No);
        });
    }

    int brush = 0;
    QString told, scanLine;
    QObject receiver;
};

TEST_F(Scans, WhereverTheFocusIsOnThePageAScanAddsItsItemAndTheRestIsAsItWas)
{
    Type(page->txtLastname, "Byron");
    int scans = 0;
    for (QWidget* control : QList<QWidget*>{page->txtFirstname, page->txtNotes, page->cboPriceList,
             page->chkWarrantyInvoice, page->txtDiscount, page->cmdCancelInvoice, page->gNewInvoice}) {
        SetFocus(control);
        ScannerTypes(Brush);
        EXPECT_EQ(Lines(), Table({{QString::number(++scans)}})) << control->objectName().toStdString();
        EXPECT_TRUE(page->txtBarcode->hasFocus());
    }
    EXPECT_EQ(Rows("SELECT FirstName, LastName, Discount FROM customer"), Table({{"", "Byron", "0.0"}}));
    EXPECT_EQ(Rows("SELECT coalesce(Notes, ''), WarrantyInvoice FROM invoice"), Table({{"", "0"}}));
    EXPECT_EQ(scanLine, "Lines: 1   Pieces: 7   Last code: " + Brush);
    EXPECT_EQ(page->gNewInvoice->TintedRow(), 1);
    page->hide();
    EXPECT_EQ(scanLine, "");
}

/// How much of a list is painted, and how often its page is laid out for it.
class PaintedRows : public QObject {
public:
    explicit PaintedRows(FlexGrid* grid)
        : m_grid(grid)
    {
        QCoreApplication::processEvents();
        grid->viewport()->installEventFilter(this);
        grid->parentWidget()->installEventFilter(this);
    }
    double Count()
    {
        QCoreApplication::processEvents();
        return double(std::exchange(m_height, 0)) / m_grid->rowHeight(0);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        layouts += event->type() == QEvent::LayoutRequest;
        if (event->type() == QEvent::Paint && watched != m_grid->parentWidget())
            for (const QRect& rect : static_cast<QPaintEvent*>(event)->region())
                m_height += rect.height();
        return false;
    }
    int layouts = 0;

private:
    FlexGrid* m_grid;
    int m_height = 0;
};

TEST_F(Scans, OnlyTheLineOfAScanIsPaintedUnlessAnotherProgramWrote)
{
    for (int item = 100; item < 104; ++item)
        Item("Nails").Barcode(QString("7%1").arg(item)).Stock(9).Price("1.10").Add();
    SetFocus(page->txtBarcode);
    ScannerTypes(Brush);
    PaintedRows painted(page->gNewInvoice);
    for (const char* code : {"7100", "7101", "7102", "7103", "7100"}) {
        Scan(code);
        const double rows = painted.Count();
        EXPECT_GE(rows, 1) << code;
        EXPECT_LE(rows, 3) << code << ": the line, and the one whose tint ends";
    }
    EXPECT_EQ(painted.layouts, 0) << "the totals have room";
    EXPECT_EQ(page->lblTotal->text(), "$8.00");
    EXPECT_EQ(GridColumn(page->gNewInvoice), QStringList({"1", "2", "1", "1", "1"}));
    EXPECT_EQ(page->gNewInvoice->Row(), 1);

    Run("UPDATE invoiceline SET quantity = 5 WHERE itemid = " + QString::number(brush));
    Scan("7101");
    EXPECT_EQ(GridColumn(page->gNewInvoice), QStringList({"5", "2", "2", "1", "1"}));
    EXPECT_EQ(page->lblTotal->text(), "$19.10");
    EXPECT_EQ(scanLine, "Lines: 5   Pieces: 11   Last code: 7101");
}

TEST_F(Scans, ADialogOfThePageIsCancelledAndTheItemAdded)
{
    WhenFormShows<frmAddOrderItem>([](frmAddOrderItem&) { ScannerTypes(Brush); });
    Click(page->cmdAddOrderItem);
    EXPECT_TRUE(Arrives({{"1"}}));
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, -1);

    WhenFormShows<frmItemQuantity>([](frmItemQuantity& form) {
        Type(form.txtItemPrice, "9");
        form.txtQuantityToAdd->FocusAll();
        ScannerTypes(Brush);
    });
    ClickRow(page->gNewInvoice, 1);
    Click(page->cmdEditOrderItem);
    EXPECT_TRUE(Arrives({{"2"}})) << "the quantity of the cancelled dialog is written first";
    EXPECT_EQ(Single("SELECT amount FROM invoiceline"), "2.5");

    WhenFormShows<frmResCustSearch>([](frmResCustSearch& form) {
        form.txtFirstname->setFocus();
        ScannerTypes(Nobodys);
        EXPECT_EQ(form.txtFirstname->text(), Nobodys) << "unknown, and so just a text";
        ScannerTypes(Brush);
    });
    ScanAtBox(Brush, false); // "No matches found." is about customers
    Click(page->cmdNewInvoiceCustSearch);
    EXPECT_TRUE(Arrives({{"3"}}));
}

TEST_F(Scans, AMessageOfTooLittleStockGivesWayToTheNextScanAndOneOfAnUnknownCodeToo)
{
    WhenFormShows<frmAddOrderItem>([&](frmAddOrderItem& form) {
        ClickRow(form.gItems, 1);
        Type(form.txtQuantityToAdd, "999");
        ScanAtBox(Nobodys, true);
        ScanAtBox(Screws, true);
        Click(form.cmdOk);
        EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.isVisible(); }));
    });
    Click(page->cmdAddOrderItem);
    EXPECT_TRUE(Arrives({{"1"}}));

    Shown(&window);
    ScanAtBox(Nobodys, true);
    ScanAtBox(Brush, true);
    ScannerTypes(Nobodys);
    EXPECT_TRUE(Arrives({{"1"}, {"1"}}));
    EXPECT_EQ(page->txtBarcode->text(), "");
}

TEST_F(Scans, QuestionsAreForPeople)
{
    for (QPushButton* button : {page->cmdCancelInvoice, page->cmdNewInvoiceCustReset, page->cmdCompleteInvoice}) {
        told.clear();
        ScanAtBox(Brush, false);
        Click(button);
        EXPECT_EQ(told.startsWith("Answer the question first"), button != page->cmdCompleteInvoice)
            << told.toStdString();
    }
    EXPECT_EQ(Lines(), Table());
    EXPECT_EQ(told, "Invoice 00001 completed");
    EXPECT_EQ(timesLeft, 1);
}

struct Typed {
    const char* text;
    Table lines;
    const char* barCodeOfBrush = "4006381333931";
};

class BarCodeTexts : public Scans, public testing::WithParamInterface<Typed> { };

TEST_P(BarCodeTexts, NameAnItemAndHowManyOfIt)
{
    Run(QStringLiteral("UPDATE item SET barcode = '%1' WHERE name = 'Brush'").arg(GetParam().barCodeOfBrush));
    ScriptedAnswers answers;
    if (GetParam().lines.isEmpty())
        answers.ExpectMessage("Item not found.", Icon::Critical);
    Scan(GetParam().text);
    EXPECT_EQ(Rows("SELECT name, quantity FROM invoiceline"), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(All, BarCodeTexts,
    testing::Values(Typed{"5*4006381333931", {{"Brush", "5"}}}, Typed{"0012*4006381333931", {{"Brush", "12"}}},
        Typed{"5*036000291452", {{"Screws", "5"}}}, Typed{"5*0036000291452", {{"Screws", "5"}}},
        Typed{"5*A1", {{"Brush", "1"}}, "5*A1"}, Typed{"5*5*A1", {{"Brush", "5"}}, "5*A1"},
        Typed{"0036000291452", {{"Screws", "1"}}}, Typed{"012345678905", {{"Brush", "1"}}, "0012345678905"},
        Typed{"036000291452", {{"Brush", "1"}}, "036000291452"}, Typed{"00036000291452", {}}, Typed{"0*A1", {}, "A1"},
        Typed{"12345*A1", {}, "A1"}, Typed{"-5*A1", {}, "A1"}, Typed{"1.5*A1", {}, "A1"}, Typed{"*A1", {}, "A1"},
        Typed{"5*", {}, ""}));

TEST_F(Scans, OneThatIsShortOfStockAddsNothingAndTheStatusLineTells)
{
    Scan("101*" + Brush);
    EXPECT_EQ(Lines(), Table());
    EXPECT_EQ(told, "There is not enough in stock to add 101*" + Brush + ".");
    EXPECT_EQ(scanLine, "Lines: 0   Pieces: 0   Last code: 101*" + Brush);
    Run("UPDATE item SET TaxRateID = 4711");
    Scan(Brush);
    EXPECT_EQ(told, Brush + " was not added: the tax rate of its item no longer exists.");
}

} // namespace
