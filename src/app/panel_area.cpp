#include "app/panel_area.h"

#include "controls/layout.h"

#include <QResizeEvent>
#include <QStackedLayout>

namespace {

/// Qt lays out a widget when it is shown. This does it for one that is not.
void LayOut(QWidget* widget)
{
    widget->ensurePolished();
    if (QLayout* layout = widget->layout()) {
        layout->activate();
        layout->setGeometry(widget->contentsRect());
    }
    for (QObject* child : widget->children()) {
        auto* childWidget = qobject_cast<QWidget*>(child);
        if (childWidget && !childWidget->isWindow() && childWidget->layout())
            LayOut(childWidget);
    }
}

} // namespace

PanelArea::PanelArea(QWidget* parent)
    : QWidget(parent)
    , m_stack(new QStackedLayout(this))
{
    setObjectName(QStringLiteral("picBack"));
}

void PanelArea::AddPanel(QWidget* panel)
{
    // A window too small for a panel scrolls it, so that every button can be reached.
    m_stack->addWidget(scrolling(panel));
}

int PanelArea::PanelCount() const
{
    return m_stack->count();
}

void PanelArea::ShowPanel(int number)
{
    m_stack->setCurrentIndex(number);
}

void PanelArea::PlaceHiddenPanels()
{
    for (int number = 0; number < m_stack->count(); ++number) {
        auto* area = static_cast<QScrollArea*>(m_stack->widget(number));
        if (area->isVisible())
            continue;
        area->setGeometry(rect());
        QWidget* panel = area->widget();
        panel->setGeometry(QRect(QPoint(), area->maximumViewportSize().expandedTo(panel->minimumSizeHint())));
        LayOut(panel);
    }
}

void PanelArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceHiddenPanels();
    emit Resized();
}
