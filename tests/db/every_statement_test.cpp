#include "support/temporary_database.h"

#include <QRegularExpression>

/// The statements of all screens, with a value for each kind of place that they leave open.

namespace {

QString Filled(const char* statement)
{
    QString text = QString::fromUtf8(statement);
    text.replace(QRegularExpression("'\\{[^}]*\\}'"), "'5'");
    text.replace(QRegularExpression("\\{(from|to|day)\\}"), "2026-3-14");
    text.replace(QRegularExpression("\\{sort\\}"), "Name");
    return text.replace(QRegularExpression("\\{[^}]*\\}"), "1");
}

const char* const Statements[] = {
    "DELETE FROM [Category] WHERE id = {id}",
    "DELETE FROM [ItemPriceList] WHERE pricelistid = {id}",
    "DELETE FROM [Location] WHERE id = {id}",
    "DELETE FROM [PriceList] WHERE id = {id}",
    "DELETE FROM [SubCategory] WHERE id = {id}",
    "DELETE FROM [Warehouse] WHERE id = {id}",
    "DELETE FROM [taxrate] WHERE id = {id}",
    "DELETE FROM customer WHERE id = {id}",
    "DELETE FROM invoice WHERE id = {id}",
    "DELETE FROM invoiceline WHERE invoiceid = {id}",
    "DELETE FROM item WHERE id = {id}",
    "DELETE FROM itemgroup WHERE id = {id}",
    "DELETE FROM itemgroup_item WHERE itemgroupid = {id}",
    "DELETE FROM vendor WHERE id = {id}",
    "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND "
    "item.locationid = {value} ORDER BY {sort}",
    "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id ORDER BY item.name",
    "SELECT item.number, * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel",
    "SELECT Customer.*, Invoice.* FROM Customer, Invoice WHERE Invoice.CustomerID = Customer.ID AND Invoice.id = {id}",
    "SELECT *, quantity * (taxratepercentage/100*amount+amount) AS taxsubtotal, quantity * "
    "(taxratepercentage/100*amount) AS taxsubtotal2 FROM invoiceline",
    "SELECT InvoiceNo, ID FROM Invoice WHERE id = {id}",
    "SELECT InvoiceLine.Quantity, Item.Name, Location.Name AS LocationName, InvoiceLine.InvoiceID, Warehouse.name AS "
    "WarehouseName FROM InvoiceLine, Item, Location, Warehouse WHERE InvoiceLine.ItemID = Item.ID AND Item.LocationID "
    "= Location.ID AND Location.WarehouseID = Warehouse.ID",
    "SELECT COUNT(*) FROM ItemCustomField;",
    "SELECT COUNT(*) FROM category, SubCategory WHERE category.id = SubCategory.categoryid AND Category.id = {id}",
    "SELECT COUNT(*) FROM item WHERE [barcode]='{barcode}'",
    "SELECT COUNT(*) FROM item WHERE [number]='{number}' AND id<>{id}",
    "SELECT COUNT(*) FROM item, Location WHERE item.Locationid = Location.id AND Location.id = {id}",
    "SELECT COUNT(*) FROM item, SubCategory WHERE item.SubCategoryid = SubCategory.id AND SubCategory.id = {id}",
    "SELECT COUNT(*) FROM item, taxrate WHERE item.taxrateid = taxrate.id AND taxrate.id = {id}",
    "SELECT COUNT(*) FROM warehouse, location WHERE warehouse.id = location.warehouseid AND warehouse.id = {id}",
    "SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category WHERE "
    "(item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id)  AND item.name LIKE '%{name}%' OR "
    "description LIKE '%{text}%' OR [number] LIKE '%{number}%' AND  subcategoryid = {id} AND  category.id = {id}",
    "SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category WHERE "
    "(item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id)  AND item.id = item.id ",
    "SELECT FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Email, BusinessName, "
    "SubmittedDate FROM Customer;",
    "SELECT FirstName, LastName, boatname, Phone, BusinessName, IsYachtClubMember, s.name AS sname, fromdate, todate "
    "FROM Customer AS c, Booking AS b, BookingSlip AS bs, Slip AS s WHERE b.customerid = c.id AND bs.bookingid = b.id "
    "AND bs.slipid = s.id;",
    "SELECT ID, ContactName, Address1, Address2, City, State, PostCode, Country, Phone, Email, BusinessName, Fax, "
    "Notes "
    "FROM Vendor WHERE ID = {id}",
    "SELECT ID, FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Fax, Email, "
    "SubmittedDate, BusinessName, Discount, PriceListID FROM Customer WHERE ID = {id}",
    "SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings",
    "SELECT TOP 1 COUNT(*) AS tot, customerid FROM invoice GROUP BY customerid ORDER BY COUNT(*) DESC;",
    "SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice GROUP BY month(submitteddate) "
    "ORDER BY count(month(submitteddate));",
    "SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice GROUP BY submitteddate ORDER BY "
    "count(submitteddate) DESC;",
    "SELECT businessname, Address1, Address2, City, State, PostCode, Country, Phone, Email, Logofilename FROM Settings",
    "SELECT categoryid FROM subcategory WHERE id = {id}",
    "SELECT count(*) FROM customer, invoice WHERE invoice.customerid = customer.id AND customer.id={id} ",
    "SELECT count(*) FROM invoice WHERE submitteddate >= #{day} 12:00 AM# AND submitteddate <= #{day} 11:59 PM#",
    "SELECT count(*) FROM invoice WHERE submitteddate BETWEEN #1-Mar-2026 00:00# AND #31-Mar-2026 23:59#",
    "SELECT count(*) FROM invoice WHERE submitteddate BETWEEN #{from} 00:00# AND #{to} 23:59#",
    "SELECT count(*) FROM item WHERE item.vendorid = {id} ",
    "SELECT customerid FROM invoice WHERE id = {id}",
    "SELECT data FROM ItemCustomFieldData WHERE itemid = {id} AND ItemCustomFieldID = {field}",
    "SELECT email FROM customer WHERE email<>'' AND email IS NOT NULL ORDER BY email;",
    "SELECT firstname, lastname FROM invoice, customer WHERE invoice.customerid = customer.id AND invoice.id = {id}",
    "SELECT id FROM SubCategory WHERE name = '{name}'",
    "SELECT id FROM TaxRate WHERE name = '{name}'",
    "SELECT id FROM Vendor WHERE businessname = '{name}'",
    "SELECT id FROM item WHERE barcode = '{code}'",
    "SELECT id FROM location WHERE name = '{name}'",
    "SELECT id, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, NoInStock, name, "
    "description, TaxRateID FROM item",
    "SELECT id, Number, WarrantyReturns, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, "
    "NoInStock, name, description, TaxRateID FROM item WHERE id = {id}",
    "SELECT id, WarrantyInvoice, StockReturned, notes, submitteddate, invoiceno, paymentmethod, shippeddate, paid FROM "
    "invoice WHERE id = {id}",
    "SELECT id, [number], name, noinstock FROM item ORDER BY [number]",
    "SELECT id, businessname FROM [Vendor] WHERE id<>1 ORDER BY businessname",
    "SELECT id, businessname, contactname, phone FROM vendor WHERE id <> 1 ORDER BY contactname",
    "SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer WHERE firstname LIKE '%{name}%' "
    "OR lastname LIKE '%{name}%' ORDER BY lastname, firstname",
    "SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer WHERE  id = id  ORDER BY "
    "lastname, firstname",
    "SELECT id, firstname, lastname, businessname, address1, address2, postcode, phone FROM customer ORDER BY "
    "lastname, "
    "firstname",
    "SELECT id, name FROM PriceList ORDER BY name;",
    "SELECT id, name FROM [Location] WHERE id<>1 AND warehouseid = {id} ORDER BY name",
    "SELECT id, name FROM itemgroup ORDER BY name",
    "SELECT id, name FROM subcategory WHERE subcategory.id<>1 AND categoryid = {id}",
    "SELECT id, name, percentage FROM taxrate WHERE id<>1 ORDER BY id",
    "SELECT id, name, type FROM ItemCustomField ORDER BY pos;",
    "SELECT id, notes, submitteddate, invoiceno FROM invoice ORDER BY submitteddate",
    "SELECT id, price FROM itempricelist WHERE itemid = {id} AND pricelistid = {list}",
    "SELECT id, quantity FROM invoiceline WHERE invoiceid = {id} AND itemid = {itemId}",
    "SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline WHERE invoiceid = "
    "{id};",
    "SELECT invoice.id, businessname, invoice.SubmittedDate as isubmitteddate, firstname, lastname FROM invoice, "
    "customer WHERE invoice.customerid = customer.id AND invoice.SubmittedDate >= #{from} 12:00AM# AND "
    "invoice.SubmittedDate <= #{to} 11:59PM# ORDER BY invoice.SubmittedDate",
    "SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, businessname, shippeddate FROM "
    "customer, "
    "invoice WHERE invoice.customerid = customer.id AND paid=0 ORDER BY firstname, lastname",
    "SELECT invoiceno FROM NextInvoiceNo",
    "SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, price, PriceListID FROM (TaxRate INNER "
    "JOIN "
    "Item ON TaxRate.ID = Item.TaxRateID) LEFT JOIN ItemPriceList ON Item.ID = ItemPriceList.ItemID ORDER BY "
    "taxrate.name",
    "SELECT item.id, [number], item.name, taxrate.percentage, taxrate.name AS tname, description FROM item, taxrate "
    "WHERE item.taxrateid = taxrate.id AND item.id = {id}",
    "SELECT item.id, itempricelist.price FROM ItemGroup_Item, Item, ItemPriceList WHERE ItemPriceList.pricelistid = "
    "{list} AND ItemPriceList.itemid = item.id AND ItemGroup_Item.itemid = item.id AND itemgroupid = {group}",
    "SELECT item.id, name FROM itemgroup_item, item WHERE itemgroup_item.itemid = item.id AND itemgroupid = {id}",
    "SELECT itemnumber FROM nextitemno",
    "SELECT noinstock FROM item WHERE id = {id}",
    "SELECT option FROM itemCustomFieldOption WHERE itemCustomFieldID = {id} ORDER BY option",
    "SELECT sum (quantity * (taxratepercentage/100*amount+amount)) AS subtotal FROM invoiceline WHERE invoiceid = {id}",
    "SELECT sum(quantity) FROM invoice, invoiceline WHERE invoiceline.itemid = {id} AND invoice.id = "
    "invoiceline.invoiceid AND submitteddate BETWEEN #{from} 00:00# AND #{to} 23:59#",
    "SELECT total2ndTax FROM invoice WHERE id = {id}",
    "SELECT webbookingemail, webbookingproviderindex, webbookingprovidercustom FROM settings",
    "UPDATE Category SET name = '{name}' WHERE id = {id}",
    "UPDATE Customer SET FirstName = '{first}', LastName = '{last}', Address1 = '{address1}', Address2 = '{address2}', "
    "City = '{city}', State = '{state}', PostCode = '{postcode}', Country = '{country}', Phone = '{phone}', Fax = "
    "'{fax}', Email = '{email}', Discount = {discount}, PriceListID = {priceListId}, BusinessName = '{business}'  "
    "WHERE "
    "ID={id};",
    "UPDATE Item SET [Number] = '{number}', Name = '{name}', Description = '{description}', Barcode = '{barcode}', "
    "LocationID = {locationId}, SubCategoryID = {subCategoryId}, VendorID = {vendorId}, TaxRateID = {taxRateId}, "
    "NoInStock = {noInStock}, ReorderLevel = {reorderLevel}, WarrantyReturns = {warrantyReturns}, MinStockLevel = "
    "{minStockLevel} WHERE ID = {id};",
    "UPDATE ItemCustomFieldData SET data = '{value}' WHERE id = {id}",
    "UPDATE Settings SET Logofilename = '{logo}', Address1 = '{address1}', Address2 = '{address2}', City = '{city}', "
    "State = '{state}', PostCode = '{postcode}', Country = '{country}', Phone = '{phone}', Fax = '{fax}', BusinessName "
    "= '{name}', SecondaryTaxEnable = True, SecondaryTaxName = '{tax}';",
    "UPDATE Vendor SET ContactName = '{contact}', Fax = '{fax}', Address1 = '{a1}', Address2 = '{a2}', City = "
    "'{city}', "
    "State = '{state}', PostCode = '{post}', Country = '{country}', Phone = '{phone}', Email = '{email}', BusinessName "
    "= '{business}'  WHERE ID={id};",
    "UPDATE invoice SET CustomerID = {id},PaymentMethod = '{method}',Paid = true,WarrantyInvoice = false,InvoiceNo = "
    "'{no}',SubmittedDate = #{day}#,ShippedDate = null,Notes = '{notes}', Total2ndTax = '{tax}' WHERE id = {id}",
    "UPDATE invoiceline SET  quantity = {quantity}, amount = '{price}' WHERE id = {id}",
    "UPDATE item SET noinstock = noinstock - {quantity} WHERE id = {id}",
    "UPDATE itemgroup SET name = '{name}' WHERE id = {id}",
    "UPDATE itempricelist SET price = '{price}'",
    "UPDATE nextinvoiceno SET invoiceno = invoiceno + 1;",
    "UPDATE nextinvoiceno SET invoiceno = {text}",
    "UPDATE nextitemno SET itemnumber=itemnumber+1",
    "UPDATE settings SET SecondaryTaxEnable = True, SecondaryTaxPercentage = '{percentage}', SecondaryTaxName = "
    "'{name}'",
    "UPDATE settings SET webbookingproviderindex={index}",
    "UPDATE taxrate SET name = '{name}', percentage = {percent} WHERE id = {id}",
};

} // namespace

class EveryStatement : public DatabaseTest, public ::testing::WithParamInterface<const char*> { };

TEST_P(EveryStatement, RunsOnADeliveredFile)
{
    const QString statement = Filled(GetParam());
    EXPECT_NO_THROW(gConnection->Execute(statement)) << statement.toStdString();
}

INSTANTIATE_TEST_SUITE_P(OfTheScreens, EveryStatement, ::testing::ValuesIn(Statements));
