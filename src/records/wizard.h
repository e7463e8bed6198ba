#pragma once

#include "records/wizard_page.h"

#include <functional>
#include <memory>

/// A wizard is a table of pages and a handler that runs them:
///
///     const WizardPages<ConfigurationWizard> Pages{Page<frmWizConfig_Welcome>, Page<frmWizConfig_Business>, ...};
///
///     void RunConfigurationWizard(QWidget* parent)
///     {
///         ConfigurationWizard wizard;
///         StartWizard(wizard);
///         ReadAnswers(wizard);
///         if (ShowPages(Pages, wizard, parent))
///             Apply(wizard);
///     }
///
/// where ConfigurationWizard is a WizardState with the answers, and each page is made from it and its parent.

/// Makes one page of a wizard.
template <typename Wizard>
using PageMaker = std::unique_ptr<WizardPage> (*)(Wizard& wizard, QWidget* parent);
template <typename Wizard>
using WizardPages = std::vector<PageMaker<Wizard>>;

template <typename PageForm, typename Wizard>
std::unique_ptr<WizardPage> Page(Wizard& wizard, QWidget* parent)
{
    return std::make_unique<PageForm>(wizard, parent);
}

/// Shows the page of the wizard's number, made anew for each showing, until the wizard is cancelled or past page
/// `count`. False when it was cancelled.
bool ShowPages(const WizardState& wizard, int count, const std::function<std::unique_ptr<WizardPage>()>& makePage);

template <typename Wizard>
bool ShowPages(const WizardPages<Wizard>& pages, Wizard& wizard, QWidget* parent)
{
    return ShowPages(
        wizard, int(pages.size()), [&] { return pages.at(size_t(wizard.WizardPage - 1))(wizard, parent); });
}
