#pragma once

#include <QWidget>

#include <functional>

/// Runs `left` (guarded) when the focus goes from `control`, or a part of it, to another control, or when its panel is
/// hidden by switching. A menu or list popping up, another program's window coming to the front, a modal form over
/// it and the closing of the main window are not leaving.
void OnFocusLeft(QWidget* control, std::function<void()> left);
/// Runs `gained` (guarded) when the focus comes to `control` from another control.
void OnFocusGained(QWidget* control, std::function<void()> gained);
