#pragma once

#include <QtGlobal>

/// Where a wizard stands. Each wizard derives a struct with its answers; the pages read them when they load and store
/// them on Next, and the wizard's handler alone writes to the database.
struct WizardState {
    qint16& WizardPage; ///< the page to show, from 1
    bool& WizardCancelled;
    bool& ShowWelcome; ///< whether the wizard starts on its welcome page; in memory only

    /// The import and the configuration wizard share all three values, so that the welcome page of both goes with one
    /// tick. The web orders and the mailing list wizard share page number and cancel flag, and have a welcome page
    /// each.
    static const WizardState Import;
    static const WizardState Configuration;
    static const WizardState WebOrders;
    static const WizardState MailingList;
};

/// Lets every wizard start on its welcome page, as at the start of the program.
void ShowAllWelcomePages();

/// Puts the wizard before its first page, or before its second when its welcome page was switched off.
void StartWizard(const WizardState& wizard);
