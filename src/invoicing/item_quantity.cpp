#include "invoicing/item_quantity.h"

#include "base/numbers.h"
#include "controls/layout.h"
#include "controls/scan_watch.h"

qint32 frmItemQuantity::EditLineQuantity = 0;
Currency frmItemQuantity::EditLinePrice;

frmItemQuantity::frmItemQuantity(const QString& quantity, const QString& price, QWidget* parent)
    : Form("frmItemQuantity", tr("Item Quantity"), parent)
{
    cmdOk->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    setLayout(column({
        fields({{tr("New Quantity:"), txtQuantityToAdd}, {tr("Price:"), txtItemPrice}}),
        stretch(),
        row({stretch(), cmdOk, cmdCancel}),
    }));
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    KeepCodesOut({txtQuantityToAdd, txtItemPrice});

    txtItemPrice->setText(price);
    txtQuantityToAdd->setText(quantity);
    txtQuantityToAdd->FocusAll();

    On(cmdOk, &QPushButton::clicked, this, &frmItemQuantity::TakeOver);
}

void frmItemQuantity::TakeOver()
{
    if (const QString quantity = txtQuantityToAdd->text(); IsNumeric(quantity) && CDbl(quantity) >= 0) {
        EditLineQuantity = CLng(quantity);
        EditLinePrice = CCur(txtItemPrice->text());
    }
    accept();
}
