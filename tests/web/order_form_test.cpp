#include "support/golden.h"
#include "support/printing.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"

namespace {

const QString Service = QStringLiteral("https://mail.shop.example/cgi-bin/rom.pl");
const QString Email = QStringLiteral("orders@harbour.example");
constexpr auto GoldenFile = "order_form.html";

QString FormLine(const QString& target)
{
    return QStringLiteral("<FORM action=\"%1\" method=\"POST\">\r\n").arg(target);
}

struct Provider {
    const char* name;
    WebOrderSettings settings;
    QString formLine;
};
void PrintTo(const Provider& provider, std::ostream* out)
{
    *out << provider.name;
}

class OrderFormProviders : public testing::TestWithParam<Provider> { };

} // namespace

TEST(OrderForm, IsTheSameToTheByteAsEver)
{
    ExpectGolden(OrderFormPage({Email, BuiltInProvider, "https://ignored.example"}, Service), GoldenFile);
}

TEST_P(OrderFormProviders, DifferInTheFormLineAlone)
{
    const auto& [name, settings, formLine] = GetParam();
    const QString expected = GoldenText(GoldenFile).replace(FormLine(Service), formLine).replace(Email, settings.email);
    EXPECT_EQ(OrderFormPage(settings, Service), expected);
}

INSTANTIATE_TEST_SUITE_P(All, OrderFormProviders,
    testing::Values(Provider{"Custom", {Email, CustomProvider, "https://own.example/?a=1&b=\"2\""},
                        FormLine("https://own.example/?a=1&b=\"2\"")},
        Provider{"CustomAndEmpty", {Email, CustomProvider, ""}, FormLine("")},
        Provider{"NoEmail", {"", BuiltInProvider, ""}, FormLine(Service)},
        Provider{"MarkersAndQuotesInTheEmail", {"%1 <o'neil\">%2@b.example", BuiltInProvider, ""}, FormLine(Service)},
        Provider{"Two", {Email, 2, "https://own.example"}, ""}, Provider{"MinusOne", {Email, -1, ""}, ""},
        Provider{"NinetyNine", {Email, 99, "x"}, ""}));
