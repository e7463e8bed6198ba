#include "parties/email_link.h"

#include "base/guard.h"
#include "controls/dialogs.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

constexpr QLatin1String MailTo("mailto:");

bool Follows(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
}

} // namespace

EmailLink::EmailLink(QWidget* parent)
    : QLabel(parent)
{
    setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(MailTo, tr("Email")));
    // Qt's own keys for links take a second Tab before Enter does anything.
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    // Qt's menu would copy the link without the address.
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Write an email"));
    setToolTip(tr("Write an email to this address"));
}

void EmailLink::WriteTo(const QLineEdit* address)
{
    On(this, &QLabel::linkActivated, this, [address] { OpenLink(MailTo + address->text()); });
}

void EmailLink::keyPressEvent(QKeyEvent* event)
{
    if (!Follows(event))
        return QLabel::keyPressEvent(event);
    // Accepted first: the form's default button is not to run as well.
    event->accept();
    if (!event->isAutoRepeat())
        emit linkActivated(MailTo);
}

void EmailLink::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(backgroundRole());
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
