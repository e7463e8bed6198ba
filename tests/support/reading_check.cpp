#include "support/reading_check.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>

#include <algorithm>
#include <set>

namespace {

std::string Quoted(const QWidget* widget)
{
    return widget->objectName().toStdString() + " \"" + Caption(widget).toStdString() + '"';
}

/// What shows on the screen, without the windows that it opened.
QList<const QWidget*> VisibleParts(const QWidget* screen)
{
    QList<const QWidget*> parts;
    for (const QWidget* widget : screen->findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == screen->window())
            parts.append(widget);
    return parts;
}

void CheckCaptions(const QWidget* screen)
{
    for (const QWidget* widget : VisibleParts(screen)) {
        auto* label = qobject_cast<const QLabel*>(widget);
        if (Caption(widget).isEmpty() || !widget->toolTip().isEmpty())
            continue;
        const QSize needed =
            label && label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : widget->minimumSizeHint();
        EXPECT_TRUE(widget->width() >= needed.width() && widget->height() >= needed.height())
            << Quoted(widget) << " is cut off: " << widget->width() << 'x' << widget->height() << " for "
            << needed.width() << 'x' << needed.height();
    }
}

/// Collects access keys and says which of them are taken twice.
class AccessKeys {
public:
    explicit AccessKeys(const QString& shared)
        : m_shared(shared)
    {
    }
    void Add(const QString& caption)
    {
        const QString key = QKeySequence::mnemonic(caption).toString();
        EXPECT_TRUE(key.isEmpty() || m_taken.insert(key).second || m_shared.contains(key.back()))
            << qPrintable(key) << " is taken twice, also by " << qPrintable(caption);
    }

private:
    QString m_shared;
    std::set<QString> m_taken;
};

void CheckAccessKeys(const QWidget* screen, const QString& shared)
{
    AccessKeys keys(shared);
    for (const QWidget* widget : VisibleParts(screen)) {
        auto* label = qobject_cast<const QLabel*>(widget);
        // The instruction lines are plain text, where "&" is a letter.
        if (label && label->wordWrap())
            continue;
        const QString caption = Caption(widget);
        keys.Add(caption);
        EXPECT_TRUE(!label || QKeySequence::mnemonic(caption).isEmpty() || label->buddy())
            << Quoted(widget) << " names no control";
        if (auto* bar = qobject_cast<const QMenuBar*>(widget))
            for (const QAction* menu : bar->actions()) {
                keys.Add(menu->text());
                AccessKeys entries(shared);
                for (const QAction* entry : menu->menu()->actions())
                    entries.Add(entry->text());
            }
    }
}

/// Whether Tab comes to the widget, to a part of it or to what it is a part of.
bool IsReachedByTab(const QWidget* widget)
{
    const auto takesTab = [](const QWidget* one) { return bool(one->focusPolicy() & Qt::TabFocus); };
    const QList<const QWidget*> parts = widget->findChildren<const QWidget*>();
    if (std::any_of(parts.begin(), parts.end(), takesTab))
        return true;
    while (widget && !takesTab(widget))
        widget = widget->parentWidget();
    return widget != nullptr;
}

/// A part goes by the name of the control around it.
bool HasName(QAccessibleInterface* part)
{
    for (; part && part->role() != QAccessible::Window && part->role() != QAccessible::Dialog; part = part->parent())
        if (!part->text(QAccessible::Name).isEmpty())
            return true;
    return false;
}

/// Looks at what a screen reader finds below `part`. The cells of lists are their rows' affair.
void CheckSpoken(QAccessibleInterface* part)
{
    for (int i = 0; i < part->childCount(); ++i) {
        QAccessibleInterface* child = part->child(i);
        const auto* widget = child ? qobject_cast<const QWidget*>(child->object()) : nullptr;
        if (!widget || !widget->isVisible())
            continue;
        if (child->state().focusable) {
            EXPECT_TRUE(HasName(child)) << Quoted(widget) << " (" << widget->metaObject()->className()
                                        << ") has no name for a screen reader";
            // A figure that the mouse can select is read like any other label; in a group of options Tab stops at the
            // chosen one.
            const bool isReachedElse =
                child->role() == QAccessible::StaticText || child->role() == QAccessible::RadioButton;
            EXPECT_TRUE(isReachedElse || IsReachedByTab(widget)) << Quoted(widget) << " is not reached by Tab";
        }
        if (child->role() != QAccessible::Table && child->role() != QAccessible::List)
            CheckSpoken(child);
    }
}

QString Longer(const QString& text)
{
    const QString plain = QString(text).remove(u'&');
    return text + plain.right((plain.size() * 2 + 4) / 5);
}

using Captions = QList<std::pair<QWidget*, QString>>;

/// Lets the layout follow the new captions. What is said on several lines asks for its height when its width is set.
void Settle(const Captions& captions)
{
    QApplication::processEvents();
    for (const auto& [widget, caption] : captions) {
        QResizeEvent asItIs(widget->size(), widget->size());
        QCoreApplication::sendEvent(widget, &asItIs);
    }
    QApplication::processEvents();
}

} // namespace

QString Caption(const QWidget* control)
{
    if (auto* button = qobject_cast<const QAbstractButton*>(control))
        return button->text();
    if (auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (auto* box = qobject_cast<const QGroupBox*>(control))
        return box->title();
    return QString();
}

void CheckReading(QWidget* screen, const QString& sharedKeys)
{
    CheckCaptions(screen);
    CheckAccessKeys(screen, sharedKeys);
    CheckSpoken(QAccessible::queryAccessibleInterface(screen));
}

void CheckLongTexts(QWidget* screen)
{
    QWidget* window = screen->window();
    const QSize size = window->size();
    Captions captions;
    for (QWidget* widget : screen->findChildren<QWidget*>())
        if (!Caption(widget).isEmpty())
            captions.append({widget, Caption(widget)});
    const auto setCaption = [](QWidget* widget, const QString& text) {
        const char* property = qobject_cast<QGroupBox*>(widget) ? "title" : "text";
        widget->setProperty(property, text);
    };
    for (const auto& [widget, caption] : captions)
        setCaption(widget, Longer(caption));
    Settle(captions);
    CheckCaptions(screen);
    constexpr QSize SmallestScreen(1024, 740);
    EXPECT_TRUE(window->width() <= SmallestScreen.width() && window->height() <= SmallestScreen.height())
        << window->objectName().toStdString() << " grows to " << window->width() << 'x' << window->height()
        << " with longer texts";
    for (const auto& [widget, caption] : captions)
        setCaption(widget, caption);
    Settle(captions);
    window->resize(size);
    QApplication::processEvents();
}
