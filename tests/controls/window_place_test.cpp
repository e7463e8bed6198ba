#include "controls/number_box.h"
#include "controls/window_place.h"
#include "support/test.h"

namespace {

class WindowPlaces : public testing::Test {
protected:
    /// Opens a form, lets `use` do with it what a user would, and closes it. Where it opened.
    static QRect Visit(const std::function<void(Form&)>& use)
    {
        Form form("frmSample", "Sample", nullptr);
        form.setLayout(column({new TextBox, new TextBox}));
        form.resize(5000, 5000); // larger than any screen
        Shown(&form);
        QTest::qWait(600); // until it stands still
        const QRect place = form.geometry();
        use(form);
        form.close();
        return place;
    }
};

} // namespace

TEST_F(WindowPlaces, AFormOpensWhereItWasLeft)
{
    const QRect left(120, 90, 333, 222);
    Visit([](Form&) {});
    EXPECT_EQ(GetConfig("frmSamplePlace", ""), "") << "nobody moved it";
    Visit([&](Form& form) { form.setGeometry(left); });
    EXPECT_EQ(Visit([](Form& form) { form.resize(300, 200); }), left);
    for (const char* garbage : {"1 2", "a b c d", "5 5 -7 9"}) {
        SaveConfig("frmSamplePlace", garbage);
        EXPECT_EQ(Visit([](Form&) {}).size(), QSize(800, 768)) << garbage; // the screen, without a frame
    }
}

TEST_F(WindowPlaces, LieWhollyOnAScreenThatIsThere)
{
    const QRect primary(0, 30, 1000, 700);
    const QRect second(1000, 0, 500, 400);
    struct {
        QRect noted, shown;
    } const cases[] = {
        {{100, 100, 300, 200}, {100, 100, 300, 200}},
        {{1050, 100, 300, 200}, {1050, 100, 300, 200}},
        {{900, 100, 300, 200}, {1000, 100, 300, 200}}, // half on each, more on the second
        {{1100, 100, 900, 900}, {1000, 0, 500, 400}}, // larger than its screen
        {{3000, 100, 300, 200}, {700, 100, 300, 200}}, // the screen is gone
        {{-500, -500, 300, 200}, {0, 30, 300, 200}},
    };
    for (const auto& [noted, shown] : cases)
        EXPECT_EQ(PlaceOnScreens(noted, {primary, second}), shown);
    EXPECT_EQ(PlaceOnScreens({1050, 100, 300, 200}, {primary}), QRect(700, 100, 300, 200));
}

TEST(NumberBoxes, TintWhatIsNoNumberAndSayWhy)
{
    NumberBox box;
    Shown(&box);
    box.setToolTip("Pieces");
    const QColor plain = box.palette().color(QPalette::Base);
    struct {
        const char* text;
        bool isNumber;
    } const cases[] = {{"12x", false}, {"12", true}, {"abc", false}, {"", true}, {"$1,234.50", true}, {"1.2.3", false}};
    for (const auto& [text, isNumber] : cases) {
        Type(&box, text);
        EXPECT_EQ(box.palette().color(QPalette::Base) == plain, isNumber) << text;
        EXPECT_EQ(box.toolTip(), isNumber ? "Pieces" : "This is not a number. Write it like 1234.5.") << text;
        EXPECT_EQ(box.text(), text);
    }
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    Type(&box, "7,5,1");
    EXPECT_TRUE(box.toolTip().endsWith("1234,5."));
}
