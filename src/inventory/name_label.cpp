#include "inventory/name_label.h"

#include "controls/layout.h"

namespace {
constexpr int WidestLabel = 200;
constexpr int LabelRoom = 12;
} // namespace

void ShowName(QLabel* label, const QString& name)
{
    ShowAsItStands(label, name + u':');
    SetPlainToolTip(label, name);
    label->setWordWrap(true);
    label->setMinimumWidth(qMin(label->fontMetrics().horizontalAdvance(name) + LabelRoom, WidestLabel));
    label->setMaximumWidth(WidestLabel);
}
