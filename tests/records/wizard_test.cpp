#include "records/wizard.h"
#include "support/test.h"

TEST(Wizards, AWelcomePageGoesForItsSharerAlone)
{
    const QList<const WizardState*> wizards{
        &WizardState::Import, &WizardState::Configuration, &WizardState::WebOrders, &WizardState::MailingList};
    const QStringList firstPages{"2211", "2211", "1121", "1112"};
    for (int unticked = 0; unticked < wizards.size(); ++unticked) {
        ShowAllWelcomePages();
        wizards[unticked]->ShowWelcome = false;
        QString pages;
        for (const WizardState* wizard : wizards) {
            wizard->WizardCancelled = true;
            StartWizard(*wizard);
            EXPECT_FALSE(wizard->WizardCancelled);
            pages += QString::number(wizard->WizardPage);
        }
        EXPECT_EQ(pages, firstPages[unticked]);
    }
    ShowAllWelcomePages();
}
