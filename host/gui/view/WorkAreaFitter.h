// Keeps the work area as large as the drawing area.
#pragma once

namespace corvane::gui {

class Commands;
class DrawingArea;

/// A single frame that fills the window keeps filling it; several frames are scaled to fit. While
/// an animation or a macro runs nothing is resized, since all pictures of a movie have one size,
/// and a macro may have chosen one.
class WorkAreaFitter {
public:
    WorkAreaFitter(const Commands& commands, const DrawingArea& area)
        : m_commands(commands), m_area(area) {}

    /// To be called whenever the size or the frames may have changed.
    void fit();

private:
    double pixelsPerInch(double width, double height) const;

    const Commands& m_commands;
    const DrawingArea& m_area;
};

} // namespace corvane::gui
