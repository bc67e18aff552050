// The program's icons, drawn in the colours of the palette.
#pragma once

#include <QIcon>

namespace corvane::gui {

enum class Icon {
    Open,
    Picture,
    Fit,
    Perspective,
    First,
    StepBack,
    Play,
    Pause,
    StepForward,
    Last,
    Loop,
    Sidebar,
    AxisX,
    AxisY,
    AxisZ
};

/// Sharp at any scale, and right in a light and in a dark palette.
QIcon icon(Icon which);

/// The program itself, for the window's title bar.
QIcon programIcon();

} // namespace corvane::gui
