#include "parties/vendors_panel.h"

#include "config/lists.h"
#include "platform/layout.h"

namespace {

/// One a column; the business name's is the default order.
const QStringList& SortExpressions()
{
    static const QStringList expressions{"", "contactname", "phone"};
    return expressions;
}

std::optional<qint64> AddVendorCells(const Recordset& row, GridFill& fill)
{
    enum { Id, BusinessName, ContactName, Phone };
    fill.Add(row.Text(BusinessName));
    fill.Add(row.Text(ContactName));
    fill.Add(row.Text(Phone));
    return row.Long(Id);
}

} // namespace

VendorsPanel::VendorsPanel(QWidget* parent)
    : Panel("picVendors", parent)
{
    cmdVendorEdit->setText(tr("View/Edit Vendor"));
    cmdVendorNew->setText(tr("New Vendor"));
    cmdVendorDelete->setText(tr("Delete Vendor"));
    gVendors->setAccessibleName(tr("Vendors"));

    gVendors->SetCols(int(SortExpressions().size()));
    for (int col = 0; col < gVendors->Cols(); ++col)
        gVendors->SetColAlignment(col, CellAlign::LeftCenter);

    auto* buttonBar = new QWidget;
    buttonBar->setObjectName(QStringLiteral("picVendorButBar"));
    buttonBar->setLayout(row({stretch(), cmdVendorEdit, cmdVendorNew, cmdVendorDelete}));
    buttonBar->layout()->setContentsMargins(0, 0, 0, 0);

    setLayout(column({
        head(tr("Vendors"),
            tr("Instructions - you are currently viewing your vendors. To sort by a column click it's title. For "
               "more details press F1 for help.")),
        gVendors,
        buttonBar,
    }));

    // The vendor record is not built yet.
    for (QPushButton* button : {cmdVendorEdit, cmdVendorNew, cmdVendorDelete}) {
        button->setEnabled(false);
        button->setToolTip(tr("The vendor record is not available yet."));
    }

    On(gVendors, &FlexGrid::Click,
        [this] { SortOnTitleClick(gVendors, SortExpressions(), [this] { RefreshVendorList(gVendors->Row(), 0); }); });
    On(gVendors, &FlexGrid::DblClick, [this] {
        if (gVendors->MouseRow() != 0)
            cmdVendorEdit->click();
    });
}

void VendorsPanel::RefreshVendorList(int row, qint64 selectId)
{
    gVendors->SetRows(1);
    gConnection->Execute("SELECT count(*) FROM item").Close();
    LoadList(gVendors,
        Ordered(QStringLiteral("SELECT id, businessname, contactname, phone FROM vendor WHERE id <> 1 "), gVendors,
            QStringLiteral("ORDER BY businessname")),
        row, selectId, AddVendorCells);
}
