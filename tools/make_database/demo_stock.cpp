#include "demo_stock.h"

#include "catalogue.h"
#include "ean13.h"
#include "people.h"

#include <QHash>
#include <QStringList>

namespace {

constexpr qint64 FirstItemNumber = 1001;

QString Utf8(const char* text)
{
    return QString::fromUtf8(text);
}

Currency Cents(qint64 cents)
{
    return Currency::FromTenThousandths(cents * 100);
}

/// Adds each name once and remembers its id.
class NamedRows {
public:
    NamedRows(DataFile& file, const char* insert)
        : m_insert(file, insert)
    {
    }

    template <typename... Values>
    qint64 Id(const QString& name, const Values&... further)
    {
        auto found = m_ids.constFind(name);
        if (found == m_ids.constEnd())
            found = m_ids.insert(name, m_insert.Run(name, further...));
        return *found;
    }

private:
    Statement m_insert;
    QHash<QString, qint64> m_ids;
};

std::vector<qint64> AddLocations(DataFile& file)
{
    file.Run("UPDATE warehouse SET name = 'Shop Floor' WHERE id = 1");
    Statement addWarehouse(file, "INSERT INTO warehouse (name) VALUES (?)");
    Statement addLocation(file, "INSERT INTO location (name, WarehouseID) VALUES (?, ?)");
    std::vector<qint64> locations;
    const auto addBays = [&](qint64 warehouse, const char* prefix, int bays) {
        for (int bay = 1; bay <= bays; ++bay)
            locations.push_back(addLocation.Run(QStringLiteral("%1 %2").arg(Utf8(prefix)).arg(bay), warehouse));
    };
    addBays(1, "Aisle", 8);
    addBays(addWarehouse.Run("Back Room"), "Rack", 6);
    addBays(addWarehouse.Run("Quay Street Shed"), "Bay", 5);
    addBays(addWarehouse.Run("Yard (under cover)"), "Stand", 3);
    return locations;
}

void AddPriceLists(DataFile& file)
{
    file.Run("UPDATE PriceList SET name = 'Sale Price' WHERE id = 1");
    file.Run("INSERT INTO PriceList (id, name) VALUES (2, 'Trade'), (3, 'Staff')");
}

/// Fields of each kind, and values for the tools and the kitchen ware.
class CustomFields {
public:
    explicit CustomFields(DataFile& file)
        : m_addData(file, "INSERT INTO ItemCustomFieldData (ItemID, ItemCustomFieldID, Data) VALUES (?, ?, ?)")
    {
        Statement addField(file, "INSERT INTO ItemCustomField (name, type, pos) VALUES (?, ?, ?)");
        m_onDisplay = addField.Run("On Display", "checkbox", 1);
        m_guarantee = addField.Run("Guarantee", "combobox", 2);
        m_madeIn = addField.Run("Made In", "textbox", 3);
        Statement addOption(file, "INSERT INTO itemCustomFieldOption (itemCustomFieldID, option) VALUES (?, ?)");
        for (const char* option : Guarantees)
            addOption.Run(m_guarantee, option);
    }

    void Describe(qint64 item, Dice& dice)
    {
        m_addData.Run(item, m_onDisplay, dice.Chance(40) ? "1" : "0");
        m_addData.Run(item, m_guarantee, dice.Pick(Guarantees));
        m_addData.Run(item, m_madeIn, dice.Pick(Countries));
    }

private:
    static constexpr const char* Guarantees[] = {"1 year", "2 years", "10 years", "Lifetime", "None"};
    static constexpr const char* Countries[] = {"", "Germany", "Sheffield", "Japan", "España", "Norway"};
    Statement m_addData;
    qint64 m_onDisplay, m_guarantee, m_madeIn;
};

class Shelves {
public:
    Shelves(DataFile& file, Dice& dice)
        : m_dice(dice)
        , m_taxRates(file, "INSERT INTO taxrate (name, percentage) VALUES (?, ?)")
        , m_categories(file, "INSERT INTO category (name) VALUES (?)")
        , m_noSubCategory(file, "INSERT INTO subcategory (name, CategoryID) VALUES ('None', ?)")
        , m_subCategories(file, "INSERT INTO subcategory (name, CategoryID) VALUES (?, ?)")
        , m_addVendor(file,
              "INSERT INTO vendor (BusinessName, ContactName, Address1, Address2, City, State, PostCode, "
              "Country, Phone, Fax, Email, Notes) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        , m_addItem(file,
              "INSERT INTO item (Number, Name, Description, Barcode, TaxRateID, LocationID, SubCategoryID, "
              "VendorID, NoInStock, ReorderLevel, MinStockLevel, WarrantyReturns) "
              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        , m_addPrice(file, "INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (?, ?, ?)")
        , m_customFields(file)
        , m_locations(AddLocations(file))
    {
        AddPriceLists(file);
        for (const ShopTaxRate& rate : ShopTaxRates)
            m_taxRates.Id(Utf8(rate.name), rate.percentage);
    }

    void Stock(const ProductLine& line)
    {
        Place place;
        place.taxRate = m_taxRates.Id(Utf8(line.taxRate));
        place.subCategory = SubCategory(line);
        place.vendor = Vendor(Utf8(line.vendor));
        place.location = m_dice.Pick(m_locations);
        for (size_t variant = 0; variant < line.variants.size(); ++variant)
            AddItem(line, int(variant), place);
    }

    const std::vector<StockedItem>& Items() const { return m_items; }

private:
    struct Place {
        qint64 taxRate, subCategory, vendor, location;
    };

    qint64 SubCategory(const ProductLine& line)
    {
        const QString category = Utf8(line.category);
        const bool isNew = !m_knownCategories.contains(category);
        const qint64 categoryId = m_categories.Id(category);
        if (isNew) {
            m_noSubCategory.Run(categoryId);
            m_knownCategories << category;
        }
        // The same name may stand under two categories.
        const QString key = category + QLatin1Char('/') + Utf8(line.subCategory);
        if (!m_subCategoryIds.contains(key))
            m_subCategoryIds[key] = m_subCategories.Run(line.subCategory, categoryId);
        return m_subCategoryIds[key];
    }

    qint64 Vendor(const QString& name)
    {
        if (!m_vendorIds.contains(name)) {
            const Party vendor = InventVendor(m_dice, name);
            m_vendorIds[name] =
                m_addVendor.Run(vendor.businessName, vendor.firstName + QLatin1Char(' ') + vendor.lastName,
                    vendor.address1, vendor.address2, vendor.city, vendor.state, vendor.postCode, vendor.country,
                    vendor.phone, vendor.fax, vendor.email, m_dice.Chance(40) ? "Carriage paid from 250.00." : "");
        }
        return m_vendorIds[name];
    }

    void AddItem(const ProductLine& line, int variant, const Place& place)
    {
        StockedItem item;
        const auto serial = qint64(m_items.size());
        item.number = QString::number(FirstItemNumber + serial);
        item.name = QStringLiteral("%1 %2").arg(Utf8(line.name), Utf8(line.variants[size_t(variant)]));
        item.description = Utf8(line.description);
        item.taxRateName = Utf8(line.taxRate);
        for (const ShopTaxRate& rate : ShopTaxRates)
            if (item.taxRateName == Utf8(rate.name))
                item.taxRatePercentage = rate.percentage;
        const int reorderLevel = m_dice.Between(2, 6) * 5;
        item.id = m_addItem.Run(item.number, item.name, item.description, ShopEan13(4'710'000 + serial * 7),
            place.taxRate, place.location, place.subCategory, place.vendor, UnitsInStock(reorderLevel), reorderLevel,
            reorderLevel / 5, m_dice.Chance(4) ? m_dice.Between(1, 3) : 0);
        AddPrices(item, line.firstPrice + variant * line.priceStep);
        if (line.firstPrice >= 850 && m_dice.Chance(60))
            m_customFields.Describe(item.id, m_dice);
        m_items.push_back(item);
    }

    /// One item in eight has run low, and a few of those have run out.
    int UnitsInStock(int reorderLevel)
    {
        if (m_dice.Chance(12))
            return m_dice.Chance(20) ? 0 : m_dice.Between(1, reorderLevel - 1);
        return reorderLevel + m_dice.Between(0, 120);
    }

    /// Trade pays 15 per cent less, staff 30.
    void AddPrices(StockedItem& item, int cents)
    {
        item.prices = {Cents(cents), Cents(cents * 85 / 100), Cents(cents * 70 / 100)};
        for (int list = 0; list < 3; ++list)
            m_addPrice.Run(item.id, list + 1, item.prices[size_t(list)]);
    }

    Dice& m_dice;
    NamedRows m_taxRates, m_categories;
    Statement m_noSubCategory, m_subCategories, m_addVendor, m_addItem, m_addPrice;
    CustomFields m_customFields;
    std::vector<qint64> m_locations;
    QStringList m_knownCategories;
    QHash<QString, qint64> m_subCategoryIds, m_vendorIds;
    std::vector<StockedItem> m_items;
};

void AddItemGroups(DataFile& file, const std::vector<StockedItem>& items)
{
    QHash<QString, qint64> idByName;
    for (const StockedItem& item : items)
        idByName[item.name] = item.id;
    Statement addGroup(file, "INSERT INTO itemgroup (name) VALUES (?)");
    Statement addMember(file, "INSERT INTO itemgroup_item (itemgroupid, ItemID) VALUES (?, ?)");
    // A group can be sold as soon as the shop opens.
    Statement restock(file, "UPDATE item SET NoInStock = ReorderLevel + 12 WHERE id = ? AND NoInStock < 12");
    for (const ItemGroupIdea& idea : ItemGroupIdeas()) {
        const qint64 group = addGroup.Run(idea.name);
        for (const char* name : idea.items) {
            const qint64 item = idByName.value(Utf8(name));
            Q_ASSERT(item != 0);
            addMember.Run(group, item);
            restock.Run(item);
        }
    }
}

} // namespace

std::vector<StockedItem> StockTheShop(DataFile& file, Dice& dice)
{
    Shelves shelves(file, dice);
    for (const ProductLine& line : Catalogue())
        shelves.Stock(line);
    AddItemGroups(file, shelves.Items());
    Statement(file, "UPDATE nextitemno SET itemnumber = ?").Run(FirstItemNumber + qint64(shelves.Items().size()));
    return shelves.Items();
}
