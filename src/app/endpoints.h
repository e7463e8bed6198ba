#pragma once

#include <QString>

/// The maker's endpoints, set when the program is built.
QString MakerWebSite();
QString SupportSite();
/// As a link that opens the mail program.
QString FeedbackMail();
QString CustomReportsPage();
