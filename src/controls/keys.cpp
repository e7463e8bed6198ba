#include "controls/keys.h"

#include "base/guard.h"

#include <QKeyEvent>
#include <QShortcut>

namespace {
constexpr const char* KeyProperty = "key";

/// A shortcut would also take the keys that the Edit menu sends.
class KeyWatch : public QObject {
public:
    KeyWatch(QWidget* control, Qt::Key key, std::function<void()> act)
        : QObject(control)
        , m_key(key)
        , m_act(std::move(act))
    {
        control->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || !event->spontaneous())
            return false;
        const auto* press = static_cast<QKeyEvent*>(event);
        if (press->key() != m_key || (press->modifiers() & ~Qt::KeypadModifier))
            return false;
        if (!press->isAutoRepeat())
            Guarded(m_act);
        return true;
    }

private:
    Qt::Key m_key;
    std::function<void()> m_act;
};
} // namespace

void OnKey(QWidget* control, Qt::Key key, std::function<void()> act)
{
    new KeyWatch(control, key, std::move(act));
}

void OnKeyInWindow(QWidget* screen, const QKeySequence& key, const std::function<void()>& act)
{
    auto* shortcut = new QShortcut(key, screen);
    shortcut->setAutoRepeat(false);
    On(shortcut, &QShortcut::activated, screen, act);
}

void LetKeyClick(QPushButton* button, Qt::Key key, QWidget* control)
{
    OnKey(control, key, [button] { button->click(); });
    TellKey(button, key);
}

void LetKeyClickInWindow(QPushButton* button, const QKeySequence& key, QWidget* screen)
{
    OnKeyInWindow(screen, key, [button] { button->click(); });
    TellKey(button, key);
}

void TellKey(QPushButton* button, const QKeySequence& key)
{
    button->setProperty(KeyProperty, key);
    const QString caption = button->text().remove(u'&');
    button->setToolTip(QStringLiteral("%1 (%2)").arg(caption, key.toString(QKeySequence::NativeText)));
}

QKeySequence KeyOf(const QPushButton* button)
{
    return button->property(KeyProperty).value<QKeySequence>();
}
