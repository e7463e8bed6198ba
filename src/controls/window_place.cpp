#include "controls/window_place.h"

#include "base/settings_store.h"
#include "controls/layout.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace {

/// Room for a window's title, which is not part of its place.
constexpr QMargins Frame(0, 32, 0, 0);

struct WindowPlace {
    QRect place; ///< what the window takes when it is not maximised
    bool maximized;
    bool operator==(const WindowPlace&) const = default;
};

WindowPlace PlaceOf(const QWidget* window)
{
    return {window->isMaximized() ? window->normalGeometry() : window->geometry(), window->isMaximized()};
}

/// Stored as "left top width height", for a maximised window with a word behind.
QString ToText(const WindowPlace& window)
{
    const QRect& place = window.place;
    return QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height())
        + (window.maximized ? QLatin1String(" maximized") : QLatin1String());
}

std::optional<WindowPlace> ReadPlace(const QString& text)
{
    const QStringList parts = text.split(u' ');
    if (parts.size() < 4)
        return std::nullopt;
    const QRect place(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt());
    if (place.isEmpty())
        return std::nullopt;
    return WindowPlace{place, parts.size() > 4};
}

/// The primary one first.
QList<QRect> Screens()
{
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry().marginsRemoved(Frame));
    return screens;
}

class PlaceKeeper : public QObject {
public:
    PlaceKeeper(QWidget* window, const QString& key)
        : QObject(window)
        , m_window(window)
        , m_key(key)
    {
        window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            // The window system has its own word on a window that opens; what comes later is the user's doing.
            constexpr int Settling = 400;
            QTimer::singleShot(Settling, this, [this] { m_opened = PlaceOf(m_window); });
        }
        if (event->type() == QEvent::Hide && !event->spontaneous() && m_opened) {
            if (const WindowPlace left = PlaceOf(m_window); left != *m_opened && left.place.isValid())
                SaveConfig(m_key, ToText(left));
            m_opened.reset();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;
    QString m_key;
    std::optional<WindowPlace> m_opened;
};

} // namespace

bool RememberPlace(QWidget* window)
{
    const QString key = window->objectName() + QLatin1String("Place");
    new PlaceKeeper(window, key);
    const std::optional<WindowPlace> noted = ReadPlace(GetConfig(key, QString()));
    if (!noted) {
        // Qt fits those that were given no size.
        if (window->testAttribute(Qt::WA_Resized))
            window->resize(
                window->size().boundedTo(window->screen()->availableGeometry().marginsRemoved(Frame).size()));
        return false;
    }
    window->setGeometry(PlaceOnScreens(noted->place, Screens()));
    if (noted->maximized)
        window->setWindowState(window->windowState() | Qt::WindowMaximized);
    return true;
}

QSize GrownWithFont(int width, int height)
{
    constexpr int TwipsAPixel = 15;
    return {TwipsToPixels(width * TwipsAPixel), TwipsToPixels(height * TwipsAPixel)};
}

QRect PlaceOnScreens(const QRect& place, const QList<QRect>& screens)
{
    const auto shared = [&](const QRect& screen) {
        const QRect both = screen & place;
        return both.isEmpty() ? 0 : qint64(both.width()) * both.height();
    };
    const QRect screen = *std::ranges::max_element(screens, {}, shared);
    QRect result(place.topLeft(), place.size().boundedTo(screen.size()));
    result.moveRight(std::min(result.right(), screen.right()));
    result.moveBottom(std::min(result.bottom(), screen.bottom()));
    result.moveLeft(std::max(result.left(), screen.left()));
    result.moveTop(std::max(result.top(), screen.top()));
    return result;
}
