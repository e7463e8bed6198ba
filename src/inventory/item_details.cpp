#include "inventory/item_details.h"

#include "base/retail_code.h"
#include "controls/layout.h"
#include "controls/scan_watch.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "inventory/item_details_scroll.h"
#include "inventory/name_label.h"

#include <QKeyEvent>
#include <QScreen>

namespace {

constexpr int LongestText = 255;
constexpr int LongestBarcode = 50;
constexpr int LongestNumber = 10;
constexpr int ColumnWidth = 420;
constexpr int DescriptionLines = 4;

void AddLine(QGridLayout* grid, QLabel* label, QWidget* control)
{
    SetLabelOf(label, control);
    const int line = grid->rowCount();
    grid->addWidget(label, line, 0);
    grid->addWidget(control, line, 1);
}

void AddLine(QGridLayout* grid, const QString& label, QWidget* control)
{
    AddLine(grid, new QLabel(label), control);
}

/// Gives the labels of two blocks of fields one width. Their fonts are known when they stand in their form.
void AlignLabels(QGridLayout* one, QGridLayout* other)
{
    int width = 0;
    for (const QGridLayout* block : {one, other})
        for (int line = 0; line < block->rowCount(); ++line)
            if (const QLayoutItem* label = block->itemAtPosition(line, 0)) {
                label->widget()->ensurePolished();
                width = qMax(width, label->sizeHint().width());
            }
    one->setColumnMinimumWidth(0, width);
    other->setColumnMinimumWidth(0, width);
}

} // namespace

qint32 frmItemDetails::gEditItemId = NewRow;

frmItemDetails::frmItemDetails(QWidget* parent)
    : Form("frmItemDetails", tr("Item Details"), parent)
{
    cmdOk->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    SetLengths();

    picBotButts->setLayout(row({stretch(), cmdOk, cmdCancel}));
    picBotButts->layout()->setContentsMargins(0, 0, 0, 0);

    auto* content = new QWidget;
    content->setLayout(
        m_customFields.IsEmpty() ? row({MainFields()}) : row({MainFields(), gap(24), CustomFieldLines()}));
    content->layout()->setContentsMargins(0, 0, 0, 0);
    QLabel* instructionLine = instructions(tr(
        "Instructions - enter the item's details. Only the name is required, however entering other details allows you "
        "to use more program features. Press F1 for help."));
    instructionLine->setObjectName(QStringLiteral("Label1"));
    setLayout(column({
        instructionLine,
        new ItemDetailsScroll(content, m_customFields.IsEmpty() ? ColumnWidth : 2 * ColumnWidth),
        picBotButts,
    }));
    AlignLabels(m_upperFields, m_lowerFields);
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    FitToScreen();

    Connect();
    FillLists();
    if (gEditItemId == NewRow)
        ProposeNewItem();
    else
        ShowStoredItem();
}

void frmItemDetails::SetLengths()
{
    for (TextBox* box : {m_number, m_name})
        box->setMaxLength(LongestText);
    m_description->SetMaxLength(LongestText);
    m_barcode->setMaxLength(LongestBarcode);
    for (TextBox* box : {m_noInStock, m_reorderLevel, m_minStockLevel, m_warrantyReturns})
        box->setMaxLength(LongestNumber);
    for (const PriceBox& price : m_prices)
        price.box->setMaxLength(LongestNumber);
}

QLayout* frmItemDetails::MainFields()
{
    m_description->setFixedHeight(
        qMax(m_description->minimumSizeHint().height(), DescriptionLines * fontMetrics().lineSpacing()));
    QGridLayout* grid = fields({
        {tr("Item Number:"), m_number},
        {tr("Name:"), m_name},
        {tr("Long Description:"), m_description},
        {tr("Barcode:"), m_barcode},
    });
    for (const PriceBox& price : m_prices)
        AddLine(grid, price.label, price.box);
    QGridLayout* bottom = fields({{tr("No In Stock:"), m_noInStock}});
    AddLine(bottom, tr("Reorder Level:"), m_reorderLevel);
    AddLine(bottom, tr("Min Stock Level:"), m_minStockLevel);
    AddLine(bottom, tr("Warranty Returns:"), m_warrantyReturns);
    AddLine(bottom, tr("Category:"), cboCategory);
    AddLine(bottom, tr("Sub Category:"), cboSubCategory);
    AddLine(bottom, tr("Vendor:"), cboVendor);
    AddLine(bottom, tr("Tax Rate:"), cboTaxRate);
    AddLine(bottom, tr("Warehouse:"), cboWarehouse);
    AddLine(bottom, tr("Storage Location:"), cboStorage);
    m_upperFields = grid;
    m_lowerFields = bottom;
    bottom->setContentsMargins(0, 0, 0, 0);
    picBot->setLayout(bottom);
    return column({grid, picBot, stretch()});
}

QLayout* frmItemDetails::CustomFieldLines()
{
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    for (const CustomFields::Line& line : m_customFields.Lines())
        AddLine(grid, line.label, line.control);
    return column({grid, stretch()});
}

CustomFields frmItemDetails::MakeCustomFields()
{
    CustomFields fields;
    for (const CustomFields::Line& line : fields.Lines()) {
        Adopt(line.label);
        Adopt(line.control);
    }
    return fields;
}

QList<frmItemDetails::PriceBox> frmItemDetails::MakePriceBoxes()
{
    lblPriceList_0->setText(tr("Sale Price:"));
    QList<PriceBox> prices{{lblPriceList_0, txtPriceList_0}};
    int index = 0;
    for (Recordset rs = gConnection->Execute("SELECT id, name FROM pricelist ORDER BY name"); !rs.Eof();
         rs.MoveNext()) {
        if (index > 0)
            prices.append({MakeMember<QLabel>("lblPriceList", index), MakeMember<NumberBox>("txtPriceList", index)});
        ShowName(prices[index].label, NullToText(rs["name"]));
        prices[index].box->setProperty("Tag", rs["id"].ToText());
        ++index;
    }
    return prices;
}

void frmItemDetails::FitToScreen()
{
    const QSize frame(40, 48);
    resize(sizeHint().boundedTo(screen()->availableGeometry().size() - frame));
}

void frmItemDetails::Connect()
{
    m_barcode->installEventFilter(this);
    TakeScans({this, m_barcode, nullptr, IsRetailCode, nullptr});
    On(cboCategory, &ComboBox::Click, this, &frmItemDetails::ShowSubCategories);
    On(cboWarehouse, &ComboBox::Click, this, &frmItemDetails::ShowLocations);
    On(cmdOk, &QPushButton::clicked, this, &frmItemDetails::Save);
}

bool frmItemDetails::eventFilter(QObject* watched, QEvent* event)
{
    // A scanner ends the bar code with Enter; that must not save a half-filled record.
    if (watched == m_barcode && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return focusNextChild();
    }
    return Form::eventFilter(watched, event);
}
