#include "fuzzing.h"

#include "web/order_form.h"
#include "web/web_order_settings.h"

#include <QHash>

/// The page of web orders: a byte for the provider, the address of the business in a line, that of the provider in the
/// rest.

namespace {

const QString Email = QStringLiteral("shop@mail.example");
const QString Target = QStringLiteral("https://forms.mail.example/");

} // namespace

void Fuzz(FuzzInput input)
{
    const int provider = int(input.Byte()) - '0';
    const QString email = AnyText(input.Line());
    const QString target = AnyText(input.Rest());

    static QHash<int, QString> pages;
    QString& plain = pages[provider];
    if (plain.isEmpty())
        plain = OrderFormPage({Email, provider, Target}, Target);
    Expect(plain.count(Email) == 2, "the address of the business stands in two fields");
    const bool hasForm = provider == BuiltInProvider || provider == CustomProvider;
    Expect(plain.count(Target) == (hasForm ? 1 : 0), "the provider's address stands in the line of the form");
    Expect(plain.count(u'\n') == plain.count(QLatin1String("\r\n")) && plain.endsWith(u'\n'), "lines end in CR LF");
    Expect(OrderFormPage({Email, provider, provider == CustomProvider ? Target : target},
               provider == CustomProvider ? target : Target)
            == plain,
        "only the provider that was chosen has a place on the page");

    const qsizetype form = hasForm ? plain.indexOf(Target) + Target.size() : 0;
    const QString expected = plain.left(form).replace(Target, target) + plain.mid(form).replace(Email, email);
    Expect(OrderFormPage({email, provider, target}, target) == expected,
        "addresses are inserted as they stand, and nothing else changes");
}
