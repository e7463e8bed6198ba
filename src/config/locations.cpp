#include "config/locations.h"

namespace {

// The default warehouse is this row, whatever its name.
constexpr qint64 DefaultWarehouse = 1;

} // namespace

const KeyTable& frmAddWarehouse::Table()
{
    static const KeyTable table{
        .name = "[Warehouse]",
        .entries = "SELECT id, name FROM [Warehouse] ORDER BY name",
        .nothingToEdit = tr("No Warehouse has been selected to edit. Please select a Warehouse and try again."),
        .nothingToRemove = tr("Please select a Warehouse to remove."),
        .keptId = DefaultWarehouse,
        .keptRefusal = tr("The default warehouse cannot be deleted. To change this warehouse click Edit."),
        .uses = "SELECT COUNT(*) FROM warehouse, location WHERE warehouse.id = location.warehouseid AND "
                "warehouse.id = {id}",
        .inUse = tr("This Warehouse is in use by one or more locations and so cannot be deleted. To delete "
                    "this Warehouse first remove the locations and then try again."),
        .removeQuestion = tr("Are you sure you want to delete this Warehouse?"),
        .remove = "DELETE FROM [Warehouse] WHERE id = {id}",
        .form = "frmAddWarehouse",
        .formTitle = tr("Warehouse Details"),
        .formInstructions = tr("Instructions - enter the Warehouse name and then click OK."),
        .nameMissing = tr("Please enter a Warehouse name to continue."),
        .storedRow = "SELECT name FROM Warehouse WHERE id = {id}",
        .update = "UPDATE Warehouse SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

const KeyTable& frmAddLocation::Table()
{
    static const KeyTable table{
        .name = "[Location]",
        .entries = "SELECT id, name FROM [Location] WHERE id<>1 AND warehouseid = {parentId} ORDER BY name",
        .nothingToEdit = tr("No Location has been selected to edit. Please select a Location and try again."),
        .nothingToRemove = tr("Please select a Location to remove."),
        .uses = "SELECT COUNT(*) FROM item, Location WHERE item.Locationid = Location.id AND Location.id = {id}",
        .inUse = tr("This Location is in use by one or more items and so cannot be deleted. To delete this "
                    "Location first remove the items and then try again."),
        .removeQuestion = tr("Are you sure you want to delete this Location?"),
        .remove = "DELETE FROM [Location] WHERE id = {id}",
        .form = "frmAddLocation",
        .formTitle = tr("Location Details"),
        .formInstructions = tr("Instructions - enter the Location name and then click OK."),
        .nameMissing = tr("Please enter a Location name to continue."),
        .storedRow = "SELECT name FROM Location WHERE id = {id}",
        .update = "UPDATE Location SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

qint32 frmAddWarehouse::CurrentWarehouseID = NewRow;
qint32 frmAddLocation::CurrentLocationID = NewRow;
qint32 frmAddLocation::LocationWarehouseID = NewRow;

frmLocations::frmLocations(QWidget* parent)
    : KeyGroupForm("frmLocations", "cboWarehouses",
        {tr("Configure Item Locations"),
            tr("Instructions - configuring Item Locations helps you to organize your inventory so it can easily be "
               "found. "),
            tr("Warehouses:"), tr("Item Bins/Locations:"), tr("&Add Location"), tr("&Edit Location"),
            tr("&Remove Location"),
            tr("No Warehouse has been selected to add the Location to. Please select a Warehouse to continue.")},
        frmAddWarehouse::Table(), frmAddLocation::Table(), parent)
{
}

qint64 frmLocations::ShowGroupDetails(qint64 id)
{
    frmAddWarehouse::CurrentWarehouseID = qint32(id);
    frmAddWarehouse(this).ShowModal();
    return frmAddWarehouse::CurrentWarehouseID;
}

void frmLocations::ShowEntryDetails(qint64 id, qint64 groupId)
{
    frmAddLocation::CurrentLocationID = qint32(id);
    frmAddLocation::LocationWarehouseID = qint32(groupId);
    frmAddLocation(this).ShowModal();
}

frmAddWarehouse::frmAddWarehouse(QWidget* parent)
    : NameForm(Table(), CurrentWarehouseID, parent)
{
    ShowStoredRow();
}

frmAddLocation::frmAddLocation(QWidget* parent)
    : NameForm(Table(), CurrentLocationID, parent)
{
    ShowStoredRow();
}

void frmAddLocation::SetFields(AddRow& row)
{
    row.Set("WarehouseID", LocationWarehouseID);
}
