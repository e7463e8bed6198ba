#include "chart/chart.h"

#include "base/guard.h"
#include "chart/chart_colors.h"
#include "chart/chart_output.h"
#include "chart/chart_painter.h"
#include "chart/chart_scene.h"
#include "controls/dialogs.h"
#include "controls/message_box.h"
#include "controls/status_line.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

// How the picture leaves the program.

namespace {
/// What a document is written on.
QPalette PaperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}
} // namespace

void Chart::BuildMenu()
{
    m_menu->setObjectName(QStringLiteral("mnuChart"));
    QAction* copy = m_menu->addAction(tr("&Copy"));
    copy->setShortcut(QKeySequence::Copy);
    // The chart's own key handler answers it, so that it is nobody else's while the chart has the focus.
    copy->setShortcutContext(Qt::WidgetShortcut);
    copy->setShortcutVisibleInContextMenu(true);
    QAction* save = m_menu->addAction(tr("&Save As..."));
    m_menu->addSeparator();
    QAction* print = m_menu->addAction(tr("&Print..."));
    On(copy, &QAction::triggered, this, &Chart::Copy);
    On(save, &QAction::triggered, this, &Chart::SaveAs);
    On(print, &QAction::triggered, this, &Chart::Print);
}

void Chart::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint place = m_marked ? PointRect(*m_marked).center() : rect().center();
    m_menu->popup(byKey ? mapToGlobal(place) : event->globalPos());
}

void Chart::PaintPicture(QPainter& painter, double pixel) const
{
    painter.setFont(PictureFont());
    painter.setLayoutDirection(layoutDirection());
    PaintChart(painter, BuildSceneFor(size(), pixel), ChartColors(PaperPalette()), NoDataText());
}

void Chart::Copy()
{
    QImage image(size() * devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&image);
    PaintPicture(painter, 1 / devicePixelRatioF());
    painter.end();
    QGuiApplication::clipboard()->setImage(image);
}

void Chart::SaveAs()
{
    const QString path = SaveFileNameOfKind(
        tr("Save Chart As"), tr("PNG picture (*.png);;SVG drawing (*.svg)"), tr("chart") + QLatin1String(".png"));
    if (path.isEmpty())
        return;
    const bool isSvg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const PicturePainter paint = [this](QPainter& painter, double pixel) { PaintPicture(painter, pixel); };
    const bool saved = isSvg ? SaveAsSvg(paint, size(), Summary(), path) : SaveAsPng(paint, size(), path);
    if (saved)
        ShowSavedAs(path);
    else
        MsgBox(tr("The chart could not be saved as %1.").arg(path), Icon::Critical);
}

void Chart::Print()
{
    if (!CurrentDialogDoor() && QPrinterInfo::availablePrinterNames().isEmpty())
        return MsgBox(
            tr("No printer is installed. The chart can be saved as a picture without one."), Icon::Information);
    QPrinter& printer = CurrentPrinter();
    if (!PrintDialog(printer))
        return;
    const PicturePainter paint = [this](QPainter& painter, double pixel) { PaintPicture(painter, pixel); };
    if (!PrintPicture(paint, size(), Summary(), printer))
        MsgBox(tr("The chart could not be printed."), Icon::Critical);
}
