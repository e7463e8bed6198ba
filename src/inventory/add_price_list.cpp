#include "inventory/add_price_list.h"

#include "controls/hourglass.h"
#include "inventory/price_fan_out.h"

#include <QProgressBar>

namespace {

// The default price list is this row, whatever its name.
constexpr qint64 DefaultPriceList = 1;

QString MarkedName(const Recordset& list)
{
    const QString name = NullToText(list["name"]);
    return list["id"].ToLong() == DefaultPriceList ? frmAddPriceList::tr("%1 (Default)").arg(name) : name;
}

} // namespace

const KeyTable& frmAddPriceList::Table()
{
    static const KeyTable table{
        .name = "[PriceList]",
        .entries = "SELECT id, name FROM [PriceList] ORDER BY name",
        .entryText = MarkedName,
        .nothingToEdit = tr("No Price List has been selected to edit. Please select a Price List and try again."),
        .nothingToRemove = tr("Please select a Price List to remove."),
        .keptId = DefaultPriceList,
        .keptRefusal = tr("This is the default Price List and so cannot be deleted. However it can be "
                          "renamed, to rename press the Edit button."),
        .removeQuestion = tr("All pricing for this Price List will be lost. Are you sure you want to delete "
                             "this Price List?"),
        .form = "frmAddPriceList",
        .formTitle = tr("Price List Details"),
        .formInstructions = tr("Instructions - enter the Price List name and then click OK."),
        .nameMissing = tr("Please enter a Price List name to continue."),
        .storedRow = "SELECT name FROM PriceList WHERE id = {id}",
        .notFoundIcon = Icon::Critical,
        .update = "UPDATE PriceList SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

int frmAddPriceList::gEditPriceListId = NewRow;

frmAddPriceList::frmAddPriceList(QWidget* parent)
    : NameForm(Table(), gEditPriceListId, parent)
{
    ShowStoredRow();
}

void frmAddPriceList::Add(const QString& name)
{
    // The bar says what is being done.
    const Hourglass hourglass({});
    auto* bar = new QProgressBar;
    bar->setAccessibleName(tr("Adding prices"));
    bar->setFormat(tr("Adding prices: %p%"));
    bar->setMinimumWidth(bar->fontMetrics().horizontalAdvance(bar->format()) + 2 * bar->fontMetrics().height());
    ShowBesideButtons(bar);
    AddPriceListForEveryItem(name, [bar](int done, int total) {
        bar->setRange(0, total);
        bar->setValue(done);
        bar->repaint();
    });
}
