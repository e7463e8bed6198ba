#include "key_tables.h"

#include "steps.h"

#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

namespace {

/// At the next form of this name, types the name, takes a picture and clicks OK.
void Name(Album& album, const char* form, const QString& name)
{
    At(form, [&album, form, name](QDialog& details) {
        Type(Find<QWidget>(&details, "txtName"), name);
        album.Take(form);
        Click(Find<QPushButton>(&details, "cmdOK"));
    });
}

void SetTaxes(MainWindow& window, Album& album)
{
    At("frmTaxRate", [&album](QDialog& form) {
        At("frmAddTaxRate", [&album](QDialog& details) {
            Type(Find<QWidget>(&details, "txtName"), QStringLiteral("Reduced"));
            Type(Find<QWidget>(&details, "txtPercentage"), QStringLiteral("2.5"));
            album.Take("tax-rate-details");
            Click(Find<QPushButton>(&details, "cmdOK"));
        });
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("tax-rates");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvTaxRates", album, "configure-menu-tax-rates");
}

void AddALocation(MainWindow& window, Album& album)
{
    At("frmLocations", [&album](QDialog& form) {
        Name(album, "frmAddWarehouse", QStringLiteral("Boat Shed"));
        Click(Find<QPushButton>(&form, "cmdCatAdd"));
        Name(album, "frmAddLocation", QStringLiteral("Loft, left"));
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("locations");
        AnswerBox(album, "warehouse-in-use", QMessageBox::Ok);
        Click(Find<QPushButton>(&form, "cmdCatRemove"));
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvLocations", album, "configure-menu-locations");
}

void AddACategory(MainWindow& window, Album& album)
{
    At("frmCategories", [&album](QDialog& form) {
        Name(album, "frmAddCategory", QStringLiteral("Ship's Supplies"));
        Click(Find<QPushButton>(&form, "cmdCatAdd"));
        Name(album, "frmAddSubCategory", QStringLiteral("Lamps & Oil"));
        Click(Find<QPushButton>(&form, "cmdAdd"));
        album.Take("categories");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuInvCats", album, "configure-menu-categories");
}

} // namespace

void ConfigureKeyTables(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    SetTaxes(window, album);
    AddALocation(window, album);
    AddACategory(window, album);
}
