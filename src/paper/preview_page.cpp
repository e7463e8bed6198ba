#include "paper/preview_page.h"

#include "base/guard.h"
#include "paper/report_text.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {
constexpr double TwipsAnInch = 1440;
constexpr int Border = 12; ///< pixels around the sheet
} // namespace

PreviewPage::PreviewPage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("picPage");
}

void PreviewPage::ShowPage(const ReportLayout* layout, ReportPage page)
{
    m_layout = layout;
    m_page = std::move(page);
    setAccessibleName(layout->Design().title);
    setAccessibleDescription(SpokenText(m_page));
    FitToSheet();
    update();
}

void PreviewPage::SetZoom(double zoom)
{
    m_zoom = zoom;
    FitToSheet();
    update();
}

double PreviewPage::PixelsATwip() const
{
    return m_zoom * logicalDpiX() / TwipsAnInch;
}

double PreviewPage::ZoomForWidth(int pixels) const
{
    return (pixels - 2 * Border) * TwipsAnInch / logicalDpiX() / m_layout->Paper().width;
}

double PreviewPage::ZoomForHeight(int pixels) const
{
    return (pixels - 2 * Border) * TwipsAnInch / logicalDpiY() / m_layout->Paper().height;
}

void PreviewPage::FitToSheet()
{
    if (!m_layout)
        return;
    const ReportPaper paper = m_layout->Paper();
    const double scale = PixelsATwip();
    setFixedSize(static_cast<int>(std::lround(paper.width * scale)) + 2 * Border,
        static_cast<int>(std::lround(paper.height * scale)) + 2 * Border);
}

void PreviewPage::paintEvent(QPaintEvent*)
{
    Guarded([this] {
        if (!m_layout)
            return;
        QPainter painter(this);
        const QRect sheet = rect().adjusted(Border, Border, -Border, -Border);
        painter.fillRect(sheet.translated(3, 3), palette().shadow());
        painter.fillRect(sheet, Qt::white);
        painter.setClipRect(sheet);
        painter.translate(sheet.topLeft());
        painter.scale(PixelsATwip(), PixelsATwip());
        m_layout->Paint(painter, m_page);
    });
}

PreviewView::PreviewView(QWidget* parent)
    : QScrollArea(parent)
{
    setObjectName("picView");
    setBackgroundRole(QPalette::Mid);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFocusPolicy(Qt::StrongFocus);
}

void PreviewView::keyPressEvent(QKeyEvent* event)
{
    const QScrollBar* bar = verticalScrollBar();
    if (event->key() == Qt::Key_PageDown && bar->value() == bar->maximum())
        emit PastEnd();
    else if (event->key() == Qt::Key_PageUp && bar->value() == bar->minimum())
        emit PastStart();
    else
        QScrollArea::keyPressEvent(event);
}

void PreviewView::wheelEvent(QWheelEvent* event)
{
    constexpr int UnitsAStep = 120;
    if (!(event->modifiers() & Qt::ControlModifier))
        return QScrollArea::wheelEvent(event);
    // Fine wheels and touchpads turn by a part of a step.
    m_turned += event->angleDelta().y();
    const int steps = m_turned / UnitsAStep;
    m_turned -= steps * UnitsAStep;
    if (steps != 0)
        emit ZoomWheel(steps);
}

void PreviewView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    emit Resized();
}
