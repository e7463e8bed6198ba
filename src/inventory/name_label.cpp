#include "inventory/name_label.h"

namespace {
constexpr int WidestLabel = 200;
constexpr int LabelRoom = 12;
} // namespace

void ShowName(QLabel* label, const QString& name)
{
    QString shown = name;
    label->setTextFormat(Qt::PlainText);
    label->setText(shown.replace(QLatin1Char('&'), QStringLiteral("&&")) + u':');
    label->setToolTip(name.toHtmlEscaped());
    label->setWordWrap(true);
    label->setMinimumWidth(qMin(label->fontMetrics().horizontalAdvance(name) + LabelRoom, WidestLabel));
    label->setMaximumWidth(WidestLabel);
}
