// Makes the work area as large as the drawing area.
#pragma once

namespace corvane::gui {

class Commands;
class DrawingArea;

/// One frame that fills the window goes on filling it; several are scaled until all can be seen.
/// While something runs all sizes stay, since the pictures of one movie are of one size, and a
/// macro may have chosen one.
class WorkAreaFitter {
public:
    WorkAreaFitter(const Commands& commands, const DrawingArea& area)
        : m_commands(commands), m_area(area) {}

    /// To be called whenever either may have changed; does nothing when all is as it should be.
    void fit();

private:
    double pixelsPerInch(double width, double height) const;

    const Commands& m_commands;
    const DrawingArea& m_area;
};

} // namespace corvane::gui
