#include "web/web_order_settings.h"

#include "base/runtime_error.h"
#include "db/batch.h"
#include "db/connection.h"

std::optional<WebOrderSettings> ReadWebOrderSettings()
{
    const Recordset rs =
        gConnection->Execute("SELECT webbookingemail, webbookingproviderindex, webbookingprovidercustom FROM settings");
    if (rs.Eof())
        return std::nullopt;
    return WebOrderSettings{
        .email = NullToText(rs["webbookingemail"]),
        .providerIndex = ToInteger16(rs["webbookingproviderindex"].ToLong()),
        .customProvider = NullToText(rs["webbookingprovidercustom"]),
    };
}

void StoreWebOrderSettings(const WebOrderSettings& settings)
{
    InBatch(*gConnection, [&] {
        gConnection->Execute(Sql("UPDATE settings SET webbookingemail='{email}'").Raw("email", settings.email));
        gConnection->Execute(
            Sql("UPDATE settings SET webbookingproviderindex={index}").Number("index", settings.providerIndex));
        gConnection->Execute(
            Sql("UPDATE settings SET webbookingprovidercustom='{custom}'").Raw("custom", settings.customProvider));
    });
}
