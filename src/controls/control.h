#pragma once

#include <QList>
#include <QString>
#include <QWidget>

/// What forms and panels share: their controls are made by name, and their order of declaration is the tab order.
class ControlOwner {
public:
    const QList<QWidget*>& Controls() const { return m_controls; }

protected:
    template <typename Control>
    Control* Make(const char* name)
    {
        auto* control = new Control;
        control->setObjectName(QLatin1String(name));
        m_controls.append(control);
        return control;
    }
    /// Takes a control that was made elsewhere in at this place of the order.
    void Adopt(QWidget* control) { m_controls.append(control); }

    /// Lets `control`, declared later, come right before `next` in the tab order.
    void PutInTabOrderBefore(QWidget* next, QWidget* control);
    /// Chains the controls in the order of their declaration, the first one behind `screen`. Call it when the layout
    /// stands.
    void ApplyTabOrder(QWidget* screen);
    /// The first control that can take the focus now; nothing when there is none.
    QWidget* FirstToFocus() const;

private:
    /// What Tab stops at in a control: itself, or the parts that it is made of.
    QList<QWidget*> TabStops(QWidget* control) const;

    QList<QWidget*> m_controls;
};

/// Declares a control whose member name and objectName are one word.
#define CONTROL(Type, name) Type* name = Make<Type>(#name)
/// A member of a control array: `CONTROL_AT(TextBox, txtFields, 3)` declares `txtFields_3`.
#define CONTROL_AT(Type, name, index) Type* name##_##index = Make<Type>(#name "_" #index)
