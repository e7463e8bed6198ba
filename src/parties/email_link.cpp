#include "parties/email_link.h"

#include "base/guard.h"
#include "controls/dialogs.h"

namespace {

constexpr QLatin1String MailTo("mailto:");

} // namespace

EmailLink::EmailLink(QWidget* parent)
    : LinkLabel(parent)
{
    ShowLink(MailTo, tr("Email"));
    // Qt's menu would copy the link without the address.
    setContextMenuPolicy(Qt::NoContextMenu);
    setAccessibleName(tr("Write an email"));
    setToolTip(tr("Write an email to this address"));
}

void EmailLink::WriteTo(const QLineEdit* address)
{
    On(this, &QLabel::linkActivated, this, [address] { OpenLink(MailTo + address->text()); });
}
