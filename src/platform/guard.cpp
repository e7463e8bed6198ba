#include "platform/guard.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace {

bool gEnded = false;
std::function<void(const RuntimeError&)> gStandIn;

void ShowErrorBox(const RuntimeError& error)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        std::fprintf(stderr, "%s\n", qPrintable(error.BoxText()));
        return;
    }
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Tavrin Inventory"), error.BoxText(), QMessageBox::Ok,
        QApplication::activeWindow());
    // Descriptions carry what the user typed; none of it is markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

bool ProgramHasEnded()
{
    return gEnded;
}

void EndProgram(const RuntimeError& error)
{
    // The box of the first error may still be up while a second one arrives: the first is the one to know of.
    if (gEnded)
        return;
    gEnded = true;
    if (gStandIn) {
        gStandIn(error);
        return;
    }
    ShowErrorBox(error);
    std::_Exit(EXIT_FAILURE);
}

void SetProgramEnd(std::function<void(const RuntimeError&)> end)
{
    gStandIn = std::move(end);
    gEnded = false;
}
