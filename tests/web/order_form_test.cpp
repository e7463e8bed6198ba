#include "support/test.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"

TEST(OrderForm, IsTheSameToTheByteAsEverAndDiffersByProviderInTheFormLineAlone)
{
    const QString service = "https://mail.shop.example/cgi-bin/rom.pl", email = "orders@harbour.example";
    const QString page = OrderFormPage({email, BuiltInProvider, "https://ignored.example"}, service);
    ExpectGolden(page, "order_form.html");

    const auto formLine = [](const QString& target) {
        return QStringLiteral("<FORM action=\"%1\" method=\"POST\">\r\n").arg(target);
    };
    const std::pair<WebOrderSettings, QString> providers[] = {
        {{email, CustomProvider, "https://own.example/?a=1&b=\"2\""}, formLine("https://own.example/?a=1&b=\"2\"")},
        {{email, CustomProvider, ""}, formLine("")}, {{"", BuiltInProvider, ""}, formLine(service)},
        {{"%1 <o'neil\">%2@b.example", BuiltInProvider, ""}, formLine(service)},
        {{email, 2, "https://own.example"}, ""}, {{email, -1, ""}, ""}, {{email, 99, "x"}, ""}};
    for (const auto& [settings, line] : providers) {
        QString expected = page;
        expected.replace(formLine(service), line).replace(email, settings.email);
        EXPECT_EQ(OrderFormPage(settings, service), expected) << line.toStdString();
    }
}
