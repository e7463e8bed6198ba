#pragma once

#include "paper/preview_window.h"

#include <QApplication>

/// The previews that are open.
inline QList<PreviewWindow*> Previews()
{
    QList<PreviewWindow*> previews;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* preview = qobject_cast<PreviewWindow*>(window); preview && preview->isVisible())
            previews.append(preview);
    return previews;
}
