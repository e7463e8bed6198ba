#include "records/data_environment.h"
#include "support/test.h"

namespace {
Report NameReport()
{
    Report report("Items", 1000);
    report.Section(ReportSectionKind::Detail).AddField("txtName", "Name", 0, 0, 500);
    report.Section(ReportSectionKind::Detail).AddField("txtVendor", "BusinessName", 0, 0, 500);
    return report;
}

Report SumReport()
{
    Report report("Sums", 1000);
    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = "Header";
    header.AddField("txtNo", "InvoiceNo", 0, 0, 500);
    header.AddField("txtSum", "Total", 0, 0, 500);
    header.AddField("txtDate", "Invoice.SubmittedDate", 0, 0, 500);
    report.Section(ReportSectionKind::Detail).AddField("txtName", "Name", 0, 0, 500);
    return report;
}

QStringList Column(const ReportTable& table, const char* field)
{
    QStringList texts;
    for (int row = 0; row < table.Count(); ++row) {
        const ReportValue value = table.At(row, table.Field(field));
        texts.append(std::holds_alternative<QString>(value) ? std::get<QString>(value) : QString("?"));
    }
    return texts;
}

class DataEnvironmentTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        environment.Register(
            {"items", "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id ORDER BY item.name", "", "", "", {}});
        environment.Register({"sums",
            "SELECT Customer.*, Invoice.* FROM Customer, Invoice WHERE Invoice.CustomerID = Customer.ID AND Invoice.id "
            ">= {from} ORDER BY Invoice.id",
            "SELECT *, quantity * amount AS linetotal FROM invoiceline", " WHERE InvoiceID = {parentKey}", "Invoice.ID",
            {{"Total", "linetotal"}}});
    }

    MainDataEnvironment environment;
};
} // namespace

TEST_F(DataEnvironmentTest, ACommandReadsOnlyTheFieldsOfTheReport)
{
    Item("Screw").Vendor(VendorRow("Bolts & Co")).Add();
    Item("Nut").Add();
    Report report = NameReport();
    environment.Bind(report, "items");
    EXPECT_EQ(report.rows->parents.Fields(), QStringList({"Name", "BusinessName"}));
    EXPECT_EQ(Column(report.rows->parents, "name"), QStringList({"Nut", "Screw"}));
    EXPECT_EQ(Column(report.rows->parents, "BusinessName").last(), "Bolts & Co");
}

TEST_F(DataEnvironmentTest, ChildrenGoToTheirParentsAndAreSummedUnrounded)
{
    const int item = Item("Screw").Add();
    Invoice(Customer("Ann", "Lee").Add()).No("00001").Add();
    const int second = Invoice(Customer("Bob", "Ray").Add()).No("00002").Add();
    const int third = Invoice(Customer("Cy", "Fox").Add()).No("00003").Add();
    Line(third, item, 3, "0.3333");
    Line(second, item, 1, "10");
    Line(third, item, 3, "0.3334");
    environment.SetParameter("sums", "from", second);
    Report report = SumReport();
    environment.Bind(report, "sums");

    const ReportRows& rows = *report.rows;
    EXPECT_EQ(Column(rows.parents, "InvoiceNo"), QStringList({"00002", "00003"}));
    EXPECT_EQ(rows.FirstChild(1), 1);
    EXPECT_EQ(rows.LastChild(1), 3);
    EXPECT_DOUBLE_EQ(std::get<double>(rows.parents.At(1, rows.parents.Field("Total"))), 3 * 0.3333 + 3 * 0.3334);
    EXPECT_EQ(std::get<QDateTime>(rows.parents.At(0, rows.parents.Field("Invoice.SubmittedDate"))).date(),
        QDate(2026, 3, 14));
}

TEST_F(DataEnvironmentTest, AnOpenCommandKeepsItsRowsUntilItIsRequeriedOrClosed)
{
    Item("Screw").Add();
    EXPECT_FALSE(environment.IsOpen("items"));
    Report shown = NameReport();
    environment.Bind(shown, "items");
    EXPECT_TRUE(environment.IsOpen("items"));

    gConnection->Execute("UPDATE item SET name = 'Bolt'");
    EXPECT_EQ(Single("SELECT name FROM item"), "Bolt") << "a bound report does not keep the screens from writing";
    Item("Nut").Add();
    Report again = NameReport();
    environment.Bind(again, "items");
    EXPECT_EQ(again.rows, shown.rows);

    environment.Requery("items");
    environment.Bind(again, "items");
    EXPECT_EQ(again.rows->parents.Count(), 2);
    EXPECT_EQ(shown.rows->parents.Count(), 1) << "an open preview keeps what it shows";

    Item("Washer").Add();
    environment.Close("items");
    EXPECT_FALSE(environment.IsOpen("items"));
    environment.Bind(again, "items");
    EXPECT_EQ(again.rows->parents.Count(), 3);
}

TEST_F(DataEnvironmentTest, TheFolderIsReadAfreshAndAFailureLeavesTheCommandClosed)
{
    SaveConfig("DBPath", "/nowhere/");
    Report report = NameReport();
    EXPECT_THROW(environment.Bind(report, "items"), RuntimeError);
    EXPECT_FALSE(environment.IsOpen("items"));

    SaveConfig("DBPath", Folder() + "/");
    environment.Command("items").parentStatement = "SELECT * FROM nothing";
    EXPECT_THROW(environment.Bind(report, "items"), RuntimeError);
    environment.Command("items").parentStatement = "SELECT name FROM item";
    environment.Bind(report, "items");
    EXPECT_EQ(report.rows->parents.Count(), 0);
}
