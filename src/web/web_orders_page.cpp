#include "web/web_orders_page.h"

#include "base/files.h"
#include "base/runtime_error.h"
#include "controls/dialogs.h"
#include "db/connection.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"

#include <QCoreApplication>

void CreateWebOrdersPage()
{
    const QString path = SaveFileName(QCoreApplication::translate("WebOrdersPage", "Create Web Orders Page"),
        QCoreApplication::translate("WebOrdersPage", "HTML (*.html);;HTM (*.htm)"), QString());
    if (path.isEmpty())
        return;
    if (IsSameFile(path, gConnection->Path()))
        throw PathFileAccessError();
    DeleteFile(path);
    const std::optional<WebOrderSettings> settings = ReadWebOrderSettings();
    if (!settings)
        return;
    if (!WriteWholeFile(path, OrderFormPage(*settings, FormMailService()).toLocal8Bit()))
        throw PathFileAccessError();
}
