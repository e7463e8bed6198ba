#pragma once

#include <QApplication>
#include <QPointer>
#include <QStyle>

/// The one style of its kind, for all controls that share it. It lives as long as the application.
template <typename Style>
QStyle* SharedStyle()
{
    static QPointer<Style> style;
    if (!style) {
        style = new Style;
        style->setParent(qApp);
    }
    return style;
}
