#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QString>

#include <initializer_list>
#include <variant>
#include <vector>

/// Layouts written down as the form reads. An item of a column or row is a widget, another layout, a stretch or a gap.

struct Stretch {
    int factor = 1;
};
struct Gap {
    int pixels;
};
using LayoutItem = std::variant<QWidget*, QLayout*, Stretch, Gap>;

Stretch stretch(int factor = 1);
Gap gap(int pixels);

QVBoxLayout* column(std::initializer_list<LayoutItem> items);
QHBoxLayout* row(std::initializer_list<LayoutItem> items);

/// A line of a field block: its label (made from text, or a named label control) and the control or layout beside it.
/// The label becomes the buddy and the accessible name of the control, or of the first control in the layout.
struct FieldLine {
    FieldLine(const QString& label, LayoutItem field);
    FieldLine(QLabel* label, LayoutItem field);

    QLabel* label;
    LayoutItem field;
};

/// Labels left, controls right, one line each.
QGridLayout* fields(std::initializer_list<FieldLine> lines);
/// One more line below those of `fields`.
void AddFieldLine(QGridLayout* fields, const FieldLine& line);
/// Several blocks of fields side by side in one grid, so that their lines share a height.
QGridLayout* fieldColumns(std::initializer_list<std::initializer_list<FieldLine>> blocks);

/// A titled frame around a layout.
QWidget* group(const QString& title, QLayout* content);

/// Scrolls `content` when there is less room than it needs, and to the control that takes the focus. Takes none of its
/// own.
QScrollArea* scrolling(QWidget* content);

/// The instruction line of a form or panel: wraps, and takes the full width.
QLabel* instructions(const QString& text);
/// Makes a label that has a name of its own such a line.
void MakeInstructions(QLabel* label, const QString& text);
/// A heading over a section.
QLabel* heading(const QString& text);

/// Makes `label` the buddy and the accessible name of `control` (mnemonics and a closing colon left out of the name).
/// A label or an option has its own text for a name.
void SetLabelOf(QLabel* label, QWidget* control);
/// Lets `label`, which names a control, show a text of the user as it stands: no markup and no access key is read into
/// it.
void ShowAsItStands(QLabel* label, const QString& text);
/// Likewise a tooltip, wrapped where it has no breaks of its own; none for "".
QString PlainToolTip(const QString& text);
void SetPlainToolTip(QWidget* widget, const QString& text);

/// Twips to logical pixels and back. Told sizes are meant for the platform's standard font, where 15 twips are a pixel,
/// and grow with the user's font, so that as much text fits.
int TwipsToPixels(int twips);
int PixelsToTwips(int pixels);
