#include "inventory/add_price_list.h"

#include "config/new_row.h"
#include "inventory/price_fan_out.h"
#include "platform/hourglass.h"
#include "platform/layout.h"

#include <QProgressBar>

int gEditPriceListId = NewRow;

frmAddPriceList::frmAddPriceList(QWidget* parent)
    : NameForm("frmAddPriceList",
        {tr("Price List Details"), tr("Instructions - enter the Price List name and then click OK."),
            tr("Please enter a Price List name to continue.")},
        parent)
{
    if (gEditPriceListId != NewRow)
        ShowStoredName(Sql("SELECT name FROM PriceList WHERE id = {gEditPriceListId}")
                           .Number("gEditPriceListId", gEditPriceListId),
            Icon::Critical);
}

void frmAddPriceList::Store(const QString& name)
{
    if (gEditPriceListId == NewRow)
        AddList(name);
    else
        RenamePriceList(gEditPriceListId, name);
}

void frmAddPriceList::AddList(const QString& name)
{
    Hourglass hourglass;
    auto* bar = new QProgressBar;
    bar->setAccessibleName(tr("Adding prices"));
    ShowBesideButtons(bar);
    AddPriceListForEveryItem(name, [bar](int done, int total) {
        bar->setRange(0, total);
        bar->setValue(done);
        bar->repaint();
    });
}
