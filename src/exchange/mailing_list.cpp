#include "exchange/mailing_list.h"

#include "base/files.h"
#include "base/text_encoding.h"
#include "db/connection.h"

#include <QStringList>

QString MailingList()
{
    QStringList addresses;
    for (Recordset customer =
             gConnection->Execute("SELECT email FROM customer WHERE email<>'' AND email IS NOT NULL ORDER BY email;");
         !customer.Eof(); customer.MoveNext())
        addresses.append(NullToText(customer[0]));
    return addresses.join(QStringLiteral(", "));
}

bool WriteMailingList(const QString& fileName)
{
    if (IsSameFile(fileName, gConnection->Path()))
        return false;
    DeleteFile(fileName);
    return WriteWholeFile(fileName, TextEncoding::OfSystem().Encode(MailingList().toStdString()));
}
