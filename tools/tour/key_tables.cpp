#include "key_tables.h"

#include "steps.h"

#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

namespace {

/// At the next form of this name, types the name, takes a picture and clicks OK.
void Name(Album& album, const char* form, const QString& name, const char* picture)
{
    At(form, [&album, name, picture](QDialog& details) {
        Type(Find<QWidget>(&details, "txtName"), name);
        album.Take(picture);
        Click(Find<QPushButton>(&details, "cmdOK"));
    });
}

void SetTaxes(MainWindow& window, Album& album)
{
    At("frmTaxRate", [&album](QDialog& form) {
        At("frmAddTaxRate", [&album](QDialog& details) {
            Type(Find<QWidget>(&details, "txtName"), QStringLiteral("Reduced"));
            Type(Find<QWidget>(&details, "txtPercentage"), QStringLiteral("2.5"));
            album.Take("new-tax-rate");
            Click(Find<QPushButton>(&details, "cmdOK"));
        });
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("tax-rates");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvTaxRates", album, "tax-rates-in-the-configure-menu");
}

void AddALocation(MainWindow& window, Album& album)
{
    At("frmLocations", [&album](QDialog& form) {
        Name(album, "frmAddWarehouse", QStringLiteral("Boat Shed"), "new-warehouse");
        Click(Find<QPushButton>(&form, "cmdCatAdd"));
        Name(album, "frmAddLocation", QStringLiteral("Loft, left"), "new-location");
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("locations");
        AnswerBox(album, "a-warehouse-in-use-cannot-be-deleted", QMessageBox::Ok);
        Click(Find<QPushButton>(&form, "cmdCatRemove"));
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvLocations", album, "locations-in-the-configure-menu");
}

void AddACategory(MainWindow& window, Album& album)
{
    At("frmCategories", [&album](QDialog& form) {
        Name(album, "frmAddCategory", QStringLiteral("Ship's Supplies"), "new-category");
        Click(Find<QPushButton>(&form, "cmdCatAdd"));
        Name(album, "frmAddSubCategory", QStringLiteral("Lamps & Oil"), "new-sub-category");
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("categories");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvCats", album, "categories-in-the-configure-menu");
}

} // namespace

void ConfigureKeyTables(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    SetTaxes(window, album);
    AddALocation(window, album);
    AddACategory(window, album);
}
