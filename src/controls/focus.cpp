#include "controls/focus.h"

#include "base/guard.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include <vector>

namespace {
/// Follows which control of each window has the focus. What Qt reports for menus, lists that drop down and other
/// windows does not count, so a control keeps the focus, as its user sees it, until another control of its window takes
/// it.
class FocusWatch : public QObject {
public:
    FocusWatch()
        : QObject(qApp)
    {
        QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
    }

    void OnLeft(QWidget* control, std::function<void()> handler) { Add(control, std::move(handler), Direction::Left); }
    void OnGained(QWidget* control, std::function<void()> handler)
    {
        Add(control, std::move(handler), Direction::Gained);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            Hidden(static_cast<QWidget*>(watched));
        else if (event->type() == QEvent::Show && !event->spontaneous())
            ShownAgain(static_cast<QWidget*>(watched));
        return false;
    }

private:
    enum class Direction { Left, Gained };
    struct Handler {
        QPointer<QWidget> control;
        Direction direction;
        std::function<void()> run;
    };
    struct Place {
        QPointer<QWidget> window;
        QPointer<QWidget> focus;
    };

    static bool Contains(const QWidget* control, const QWidget* part)
    {
        return control && part && (control == part || control->isAncestorOf(part));
    }

    void Add(QWidget* control, std::function<void()> handler, Direction direction)
    {
        m_handlers.push_back({control, direction, std::move(handler)});
        control->installEventFilter(this);
    }

    /// The control that has the focus in a window as its user sees it.
    QPointer<QWidget>& FocusIn(QWidget* window)
    {
        std::erase_if(m_places, [](const Place& place) { return !place.window; });
        for (Place& place : m_places)
            if (place.window == window)
                return place.focus;
        window->installEventFilter(this);
        return m_places.emplace_back(Place{window, nullptr}).focus;
    }

    void Follow(QWidget* now)
    {
        if (!now || now->window()->windowType() == Qt::Popup || qobject_cast<QMenuBar*>(now)
            || qobject_cast<QMenu*>(now))
            return;
        Move(now->window(), now);
    }

    // When a panel is switched away the focus can stay on a control out of sight, or fall to nobody.
    void Hidden(QWidget* widget)
    {
        QWidget* window = widget->window();
        QPointer<QWidget>& focus = FocusIn(window);
        if (!window->isVisible())
            focus = nullptr;
        else if (Contains(widget, focus))
            Move(window, nullptr);
    }

    // Where nobody took the focus meanwhile, Qt reports nothing when it is seen again.
    void ShownAgain(QWidget* widget)
    {
        if (QWidget* focus = QApplication::focusWidget(); Contains(widget, focus))
            Move(focus->window(), focus);
    }

    void Move(QWidget* window, QWidget* to)
    {
        QPointer<QWidget>& focus = FocusIn(window);
        const QPointer<QWidget> from = focus;
        const QPointer<QWidget> now = to;
        focus = now;
        if (from == now)
            return;
        Run(Direction::Left, from, now);
        // A handler that set the focus itself has had its own round.
        if (now && FocusIn(window) == now)
            Run(Direction::Gained, now, from);
    }

    /// Runs the handlers of the controls that contain `inside` but not `outside`.
    void Run(Direction direction, const QPointer<QWidget>& inside, const QPointer<QWidget>& outside)
    {
        std::erase_if(m_handlers, [](const Handler& handler) { return !handler.control; });
        std::vector<Handler> due;
        for (const Handler& handler : m_handlers)
            if (handler.direction == direction && Contains(handler.control, inside)
                && !Contains(handler.control, outside))
                due.push_back(handler);
        for (const Handler& handler : due)
            if (handler.control)
                Guarded(handler.run);
    }

    std::vector<Handler> m_handlers;
    std::vector<Place> m_places;
};

FocusWatch& Watch()
{
    static QPointer<FocusWatch> watch;
    if (!watch)
        watch = new FocusWatch;
    return *watch;
}
} // namespace

void OnFocusLeft(QWidget* control, std::function<void()> left)
{
    Watch().OnLeft(control, std::move(left));
}

void OnFocusGained(QWidget* control, std::function<void()> gained)
{
    Watch().OnGained(control, std::move(gained));
}
