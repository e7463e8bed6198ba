#include "app/endpoints.h"

QString MakerWebSite()
{
    return QStringLiteral(TAVRIN_WEB_SITE);
}

QString SupportSite()
{
    return QStringLiteral(TAVRIN_SUPPORT_SITE);
}

QString FeedbackMail()
{
    return QStringLiteral("mailto:" TAVRIN_SUPPORT_MAIL);
}

QString CustomReportsPage()
{
    return QStringLiteral(TAVRIN_WEB_SITE "/InventoryCustomisation.php?s=app");
}
