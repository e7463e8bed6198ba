#include "app/app_test.h"
#include "app/language.h"

#include <QTranslator>

namespace {

/// A language that puts each text that is looked up in brackets.
class Brackets : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

class TranslationTest : public MainWindowTest {
protected:
    void TearDown() override
    {
        SetLanguage({});
        MainWindowTest::TearDown();
    }
};

} // namespace

TEST_F(TranslationTest, ReachesEveryTextOfTheMainWindow)
{
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    MainWindow& window = Window();
    QStringList left;
    // What is read from the file, the settings or the locale stays as it is: figures, weekdays, terms, price lists.
    static const QRegularExpression data(
        "^(lbl(Most|Least|Rec).*|lblLabels_(26|5[2-8])|lblPostCode|cboInvoicePriceList)$");
    const auto check = [&left](const QObject* of, const QString& text) {
        const bool translates = !data.match(of->objectName()).hasMatch() && text != "Sale Price";
        if (translates && text.contains(QRegularExpression("[A-Za-z]{2}")) && !text.contains(u'['))
            left.append(of->objectName() + ": " + text);
    };
    for (const auto* action : window.findChildren<QAction*>())
        check(action, action->text());
    for (const auto* label : window.findChildren<QLabel*>())
        check(label, label->text());
    for (const auto* button : window.findChildren<QAbstractButton*>())
        check(button, button->text());
    for (const auto* box : window.findChildren<QGroupBox*>())
        check(box, box->title());
    for (const auto* grid : window.findChildren<FlexGrid*>())
        for (const QString& title : GridTitles(grid))
            check(grid, title);
    for (const auto* combo : window.findChildren<QComboBox*>())
        for (const QString& entry : Entries(combo))
            check(combo, entry);
    EXPECT_EQ(left.join(u'\n'), "");
}

TEST_F(TranslationTest, FollowsTheCodeOfTheLanguageAndIsEnglishWithoutOne)
{
    QStringList shown;
    for (const char* code : {"de", "FR", "de_AT", "fr-CA", "", "en", "xx", "ja", "../de", "German"}) {
        SetLanguage(QString::fromLatin1(code));
        shown << InvoicePage::tr("Cash");
    }
    EXPECT_EQ(shown.join(u' '), QStringLiteral("Bar Espèces Bar Espèces Cash Cash Cash Cash Cash Cash"));
}
