#include "base/numbers.h"
#include "controls/focus.h"
#include "controls/keys.h"
#include "controls/layout.h"
#include "controls/screen_input.h"
#include "invoicing/invoice_page.h"

#include <QStyle>

namespace {

/// A bar at the bottom of the page: as wide as the page, as high as its content.
void FillBar(QWidget* bar, QLayout* content)
{
    content->setContentsMargins(0, 0, 0, 0);
    bar->setLayout(content);
    bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QLabel* CaptionOver(const QString& text, QWidget* control)
{
    auto* caption = new QLabel(text);
    SetLabelOf(caption, control);
    return caption;
}

/// A line that cannot be missed, out of sight until it is true.
QWidget* Warning(const QString& text, QWidget* parent)
{
    auto* bar = new QWidget(parent);
    auto* icon = new QLabel;
    const int size = bar->style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(bar->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    auto* label = heading(text);
    label->setWordWrap(true);
    auto* content = row({icon, label});
    content->setStretchFactor(label, 1);
    FillBar(bar, content);
    bar->hide();
    return bar;
}

} // namespace

InvoicePage::InvoicePage(QWidget* parent)
    : Panel("picNewInvoice", parent)
{
    SetCaptions();
    FillBar(picBarcode, row({CaptionOver(tr("Bar Code:"), txtBarcode), txtBarcode, cmdAddBarCodeItem}));
    // Each scan paints the box. With a background of its own the bar is painted without all that lies below it.
    picBarcode->setAutoFillBackground(true);
    FillBar(picNewInvoiceBotBit, PaymentAndTotals());
    FillBar(picNewInvoiceBotButts, EndButtons());
    m_gone = Warning(
        tr("This invoice no longer exists: it has been deleted. What you enter here belongs to no invoice."), this);
    auto* page = column({
        head(tr("New Invoice"),
            tr("Instructions -  Enter your customer's details and/or click Customer Search to locate an existing "
               "customer. Add your invoice items and then click Complete Invoice.")),
        m_gone,
        heading(tr("Enter your customer's details:")),
        CustomerSection(),
        row({cmdNewInvoiceCustSearch, cmdNewInvoiceCustReset, stretch(), picBarcode}),
        LinesSection(),
        picNewInvoiceBotBit,
        picNewInvoiceBotButts,
    });
    page->setContentsMargins(9, 6, 9, 6);
    page->setSpacing(5);
    setLayout(page);

    ConnectSaves();
    ConnectCommands();
    ConnectScans();
    ConnectKeys();
}

void InvoicePage::SetCaptions()
{
    lblPostCode->setText(tr("Zip/Post Code:"));
    cmdNewInvoiceCustSearch->setText(tr("Customer &Search"));
    cmdNewInvoiceCustReset->setText(tr("&Reset Customer"));
    chkWarrantyInvoice->setText(tr("Warranty Invoice"));
    cmdAddBarCodeItem->setText(tr("Add From Bar Code"));
    cmdAddOrderItem->setText(tr("Add Order Item"));
    cmdEditOrderItem->setText(tr("Edit Order Item"));
    cmdDeleteOrderItem->setText(tr("Delete Order Item"));
    cmdAddGroupItems->setText(tr("Add Group Items"));
    chkPaid->setText(tr("Paid in full"));
    lblLabels_26->setText(tr("Secondary Tax:"));
    cmdCompleteInvoice->setText(tr("Complete Invoice"));
    cmdCancelInvoice->setText(tr("Cancel Invoice"));
    cmdPrintPickingList->setText(tr("Picking List"));
    cmdCloseInvoice->setText(tr("Close"));
}

QLayout* InvoicePage::CustomerSection()
{
    dtShippedDate->SetCheckBox(true);
    QGridLayout* section = fieldColumns({
        {{tr("First Name:"), txtFirstname}, {tr("Last Name:"), txtLastname}, {tr("Business Name:"), txtBusinessName},
            {tr("Address:"), txtAddress1}, {tr("Address:"), txtAddress2}},
        {{tr("City:"), txtCity}, {tr("State:"), txtState}, {lblPostCode, txtPostcode}, {tr("Country:"), txtCountry},
            {tr("Phone:"), txtPhone}},
        {{tr("Fax:"), txtFax}, {tr("Email:"), txtEmail}, {tr("Discount:"), txtDiscount},
            {tr("Price List:"), cboPriceList}},
        {{tr("Invoice No:"), lblInvoiceNo}, {tr("Invoice Date:"), lblInvoiceDate}, {tr("Shipped Date:"), dtShippedDate},
            {QString(), chkWarrantyInvoice}},
    });
    section->setVerticalSpacing(3);
    // In a narrow window, or with a large font, the page scrolls before a name is down to its first letters.
    constexpr int FewestCharacters = 10;
    for (const PartyField& field : CustomerBoxes())
        field.box->setMinimumWidth(FewestCharacters * fontMetrics().averageCharWidth());
    return section;
}

QLayout* InvoicePage::LinesSection()
{
    gNewInvoice->SetColumns({
        {"quantity", tr("Qty"), 500, CellAlign::CenterTop, CellAlign::CenterCenter, NoOrder},
        {"number", tr("Number"), 1200, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder},
        {"name", tr("Name"), 1600, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder, Spare::Always},
        {"amount", tr("Sale Price"), 1200, CellAlign::RightCenter, CellAlign::RightCenter, NoOrder},
        {"taxratename", tr("Tax Rate"), 1600, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder},
        {"taxratepercentage", tr("Sub-Total"), 1100, CellAlign::RightCenter, CellAlign::RightCenter, NoOrder},
    });
    gNewInvoice->SetScrollBarRoom(350);
    gNewInvoice->OfferOnRows({cmdEditOrderItem, cmdAddOrderItem, cmdDeleteOrderItem});
    LetKeyClick(cmdEditOrderItem, Qt::Key_F2, gNewInvoice);
    LetKeyClick(cmdDeleteOrderItem, Qt::Key_Delete, gNewInvoice);
    gNewInvoice->SetEmptyText(
        tr("Nothing is ordered yet. Scan a bar code or press \"%1\".").arg(cmdAddOrderItem->text()));

    auto* grid = row(
        {gNewInvoice, column({cmdAddOrderItem, cmdEditOrderItem, cmdDeleteOrderItem, cmdAddGroupItems, stretch()})});
    auto* section = column({CaptionOver(tr("Items Ordered:"), gNewInvoice), grid});
    section->setStretchFactor(grid, 1);
    return section;
}

void InvoicePage::FillPaymentMethods()
{
    for (const char* method : PaymentMethods)
        cboPaymentMethod->AddItem(tr(method), 0);
}

QLayout* InvoicePage::PaymentAndTotals()
{
    auto* payment = fields({
        {tr("Payment Method:"), cboPaymentMethod},
        {tr("Amount Payed:"), txtAmountPayed},
        {QString(), chkPaid},
    });
    auto* notes = column({CaptionOver(tr("Invoice Notes:"), txtNotes), txtNotes, stretch()});
    // The bar is as high as the payments beside the notes, not as the notes would like to be.
    txtNotes->setFixedHeight(txtNotes->minimumSizeHint().height());

    // The secondary tax's caption is no buddy: "&" in the name of a tax is a letter.
    lblLabels_26->setTextFormat(Qt::PlainText);
    // A long name is cut off; its tooltip shows the whole.
    constexpr int WidestTaxName = 220;
    lblLabels_26->setMaximumWidth(WidestTaxName);
    auto* totalCaption = new QLabel(tr("Total:"));
    for (QLabel* label : {totalCaption, static_cast<QLabel*>(lblTotal)}) {
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
    constexpr int RoomOfAFigure = 110;
    for (SteadyLabel* figure : {lblSecondTax, lblTotal}) {
        figure->LetSelect();
        figure->setMinimumWidth(RoomOfAFigure);
    }
    auto* totals = new QGridLayout;
    totals->addWidget(lblLabels_26, 0, 0);
    totals->addWidget(lblSecondTax, 0, 1, Qt::AlignRight);
    totals->addWidget(totalCaption, 1, 0);
    totals->addWidget(lblTotal, 1, 1, Qt::AlignRight);
    totals->setColumnMinimumWidth(1, RoomOfAFigure);
    totals->setRowStretch(2, 1);

    auto* payments = column({new QLabel(tr("Customer Payments:")), payment, stretch()});
    auto* bar = row({payments, gap(12), notes, gap(12), totals});
    bar->setStretchFactor(notes, 1);
    return bar;
}

QLayout* InvoicePage::EndButtons()
{
    return row({cmdCompleteInvoice, cmdCancelInvoice, cmdPrintPickingList, stretch(), cmdCloseInvoice});
}

void InvoicePage::ConnectKeys()
{
    const QKeySequence toBarCode(Qt::Key_F6);
    txtBarcode->setToolTip(
        QStringLiteral("%1 (%2)").arg(txtBarcode->accessibleName(), toBarCode.toString(QKeySequence::NativeText)));
    OnKeyInWindow(this, toBarCode, [this] { txtBarcode->FocusAll(); });
    PressWithKey(cmdAddOrderItem, this, Qt::Key_F7);
    PressWithKey(cmdNewInvoiceCustSearch, this, Qt::Key_F8);
    PressWithKey(cmdCompleteInvoice, this, Qt::Key_F9);
}

void InvoicePage::ConnectCommands()
{
    On(cboPriceList, &ComboBox::Click, this, &InvoicePage::PriceListChosen);
    OnFocusLeft(txtAmountPayed,
        [this] { Ignoring([this] { txtAmountPayed->setText(FormatCurrency(txtAmountPayed->text())); }); });
    OnFocusGained(txtBarcode, [this] { SetDefaultButton(cmdAddBarCodeItem, true); });
    OnFocusLeft(txtBarcode, [this] { SetDefaultButton(cmdAddBarCodeItem, false); });

    On(cmdNewInvoiceCustSearch, &QPushButton::clicked, this, &InvoicePage::SearchCustomer);
    On(cmdNewInvoiceCustReset, &QPushButton::clicked, this, &InvoicePage::ResetCustomer);
    On(cmdAddOrderItem, &QPushButton::clicked, this, &InvoicePage::AddOrderItem);
    On(cmdEditOrderItem, &QPushButton::clicked, this, &InvoicePage::EditOrderItem);
    On(gNewInvoice, &FlexGrid::DblClick, this, &InvoicePage::EditOrderItem);
    On(cmdDeleteOrderItem, &QPushButton::clicked, this, &InvoicePage::DeleteOrderItem);
    On(cmdAddGroupItems, &QPushButton::clicked, this, &InvoicePage::AddGroupItems);
    On(cmdCompleteInvoice, &QPushButton::clicked, this, &InvoicePage::CompleteInvoice);
    On(cmdCancelInvoice, &QPushButton::clicked, this, &InvoicePage::CancelInvoice);
    On(cmdPrintPickingList, &QPushButton::clicked, this, &InvoicePage::PrintPickingList);
    On(cmdCloseInvoice, &QPushButton::clicked, this, &InvoicePage::CloseInvoice);
}
