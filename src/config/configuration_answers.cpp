#include "config/configuration_answers.h"

#include "base/database_path.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/settings_store.h"
#include "config/secondary_tax.h"
#include "db/add_row.h"
#include "db/batch.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString NoTaxRate = QStringLiteral("-1");
const QString HideTaxKey = QStringLiteral("HideTaxOnInvoice");

bool ReadBusiness(ConfigurationWizard& wizard)
{
    const Recordset settings = gConnection->Execute("SELECT fax, Logofilename, Address1, Address2, City, State, "
                                                    "PostCode, Country, Phone, Email, BusinessName FROM settings");
    if (settings.Eof())
        return false;
    wizard.ConfigFax = NullToText(settings["fax"]);
    wizard.ConfigLogoFile = NullToText(settings["Logofilename"]);
    wizard.ConfigAddress1 = NullToText(settings["Address1"]);
    wizard.ConfigAddress2 = NullToText(settings["Address2"]);
    wizard.ConfigCity = NullToText(settings["City"]);
    wizard.ConfigState = NullToText(settings["State"]);
    wizard.ConfigPostCode = NullToText(settings["PostCode"]);
    wizard.ConfigCountry = NullToText(settings["Country"]);
    wizard.ConfigPhone = NullToText(settings["Phone"]);
    wizard.ConfigBusinessName = NullToText(settings["BusinessName"]);
    return true;
}

void ReadTaxRate(ConfigurationWizard& wizard)
{
    const Recordset rate = gConnection->Execute("SELECT id, name, percentage FROM taxrate WHERE id<>1 ORDER BY id");
    wizard.ConfigTaxId = rate.Eof() ? NoTaxRate : NullToText(rate["id"]);
    wizard.ConfigTaxName = rate.Eof() ? QString() : NullToText(rate["name"]);
    wizard.ConfigTaxPercent = rate.Eof() ? QString() : NullToText(rate["percentage"]);
}

/// With its dot; "" when the file's name has none.
QString ExtensionOf(const QString& file)
{
    const QString name = QFileInfo(file).fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.sliced(dot);
}

QString CopyOfLogo(const QString& logo)
{
    if (logo.isEmpty())
        return QString();
    QString copy = MakeUniqueFileName(LogoFolder(), ExtensionOf(logo));
    // A pipe would keep the copy waiting for ever.
    if (QFileInfo(logo).isFile())
        QFile::copy(logo, copy);
    return copy;
}

void StoreBusiness(const ConfigurationWizard& wizard, const QString& logo)
{
    gConnection->Execute(
        Sql("UPDATE Settings SET Logofilename = '{logo}', Address1 = '{address1}', Address2 = '{address2}', City = "
            "'{city}', State = '{state}', PostCode = '{postcode}', Country = '{country}', Phone = '{phone}', Fax = "
            "'{fax}', BusinessName = '{name}', SecondaryTaxEnable = {secondTax}, SecondaryTaxName = '{secondTaxName}';")
            .Text("logo", logo)
            .Text("address1", wizard.ConfigAddress1)
            .Text("address2", wizard.ConfigAddress2)
            .Text("city", wizard.ConfigCity)
            .Text("state", wizard.ConfigState)
            .Text("postcode", wizard.ConfigPostCode)
            .Text("country", wizard.ConfigCountry)
            .Text("phone", wizard.ConfigPhone)
            .Text("fax", wizard.ConfigFax)
            .Text("name", wizard.ConfigBusinessName)
            .Raw("secondTax", TruthText(wizard.ConfigSecondTaxEnable))
            .Text("secondTaxName", wizard.ConfigSecondTaxName));
    SecondaryTax::SecondaryTaxName = wizard.ConfigSecondTaxName;
    SecondaryTax::SecondaryTaxEnable = wizard.ConfigSecondTaxEnable;
}

void AddTaxRate(const ConfigurationWizard& wizard)
{
    AddRow rate(*gConnection, "[taxrate]");
    rate.AddNew();
    rate.Set("Name", wizard.ConfigTaxName);
    rate.Set("Percentage", wizard.ConfigTaxPercent);
    rate.Update();
}

void StoreTaxRate(const ConfigurationWizard& wizard)
{
    if (CLng(wizard.ConfigTaxId) != CLng(NoTaxRate))
        gConnection->Execute(Sql("UPDATE taxrate SET name = '{name}', percentage = {percent} WHERE id = {id}")
                                 .Text("name", wizard.ConfigTaxName)
                                 .Raw("percent", wizard.ConfigTaxPercent)
                                 .Raw("id", wizard.ConfigTaxId));
    else if (!wizard.ConfigTaxName.isEmpty())
        AddTaxRate(wizard);
}

} // namespace

bool ReadConfiguration(ConfigurationWizard& wizard)
{
    if (!ReadBusiness(wizard))
        return false;
    ReadTaxRate(wizard);
    wizard.ConfigSecondTaxName = SecondaryTax::SecondaryTaxName;
    wizard.ConfigSecondTaxEnable = SecondaryTax::SecondaryTaxEnable;
    wizard.ConfigHideTax = CBool(GetConfig(HideTaxKey, TruthText(false)));
    return true;
}

void StoreConfiguration(const ConfigurationWizard& wizard)
{
    const QString logo = CopyOfLogo(wizard.ConfigLogoFile);

    InBatch(*gConnection, [&] {
        StoreBusiness(wizard, logo);
        StoreTaxRate(wizard);
    });

    SaveConfig(HideTaxKey, TruthText(wizard.ConfigHideTax));
}
