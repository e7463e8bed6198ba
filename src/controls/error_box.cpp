#include "controls/error_box.h"

#include "base/guard.h"

#include <QApplication>
#include <QMessageBox>

namespace {

void ShowErrorBox(const QString& text)
{
    QMessageBox box(
        QMessageBox::Critical, QStringLiteral("Tavrin Inventory"), text, QMessageBox::Ok, QApplication::activeWindow());
    // Descriptions carry what the user typed; none of it is markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

void InstallErrorBox()
{
    SetErrorBox(ShowErrorBox);
}
