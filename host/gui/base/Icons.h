// The program's icons, drawn in the colors of the palette.
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

/// Sharp at any scale, and legible with a light and a dark palette.
QIcon icon(Icon which);

/// The program's own icon, for title bars.
QIcon programIcon();

} // namespace corvane::gui
