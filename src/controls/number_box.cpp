#include "controls/number_box.h"

#include "base/numbers.h"

#include <QPalette>

namespace {

QColor Tinted(const QColor& color)
{
    constexpr QColor Red(220, 40, 40);
    constexpr double Share = 0.25;
    const auto mix = [](int part, int red) { return int(part * (1 - Share) + red * Share); };
    return {mix(color.red(), Red.red()), mix(color.green(), Red.green()), mix(color.blue(), Red.blue())};
}

} // namespace

NumberBox::NumberBox(QWidget* parent)
    : TextBox(parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(this, &QLineEdit::textChanged, this, &NumberBox::ShowWhetherItIsANumber);
}

void NumberBox::ShowWhetherItIsANumber()
{
    // A blank box says so itself.
    const bool isWrong = !text().isEmpty() && !IsNumeric(text());
    if (isWrong == m_isTinted)
        return;
    m_isTinted = isWrong;
    if (isWrong)
        m_toolTip = toolTip();
    setToolTip(isWrong ? tr("This is not a number. Write it like %1.").arg(CStr(1234.5)) : m_toolTip);
    QPalette tint;
    if (isWrong)
        tint.setColor(QPalette::Base, Tinted(QPalette().color(QPalette::Base)));
    setPalette(tint);
}
