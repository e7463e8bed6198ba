#include "records/wizard.h"

bool ShowPages(const WizardState& wizard, int count, const std::function<std::unique_ptr<WizardPage>()>& makePage)
{
    // Each page opens where the one before was left, in its size.
    QByteArray place;
    while (!wizard.WizardCancelled && wizard.WizardPage <= count) {
        const std::unique_ptr<WizardPage> page = makePage();
        page->restoreGeometry(place);
        page->ShowModal();
        place = page->saveGeometry();
        // A page that nobody closed, or that closed as the program ended, is the last one: it would open for ever.
        if (page->isVisible() || ProgramHasEnded())
            wizard.WizardCancelled = true;
    }
    return !wizard.WizardCancelled;
}
