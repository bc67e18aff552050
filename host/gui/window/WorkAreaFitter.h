// Makes the work area as large as the drawing area.
#pragma once

namespace corvane::host {
class Application;
struct Placement;
} // namespace corvane::host

namespace corvane::gui {

class DrawingArea;

/// The paper is eight inches wide in a window of any size, as in a batch run, so that texts and
/// frames look the same in both. One frame that fills the window goes on filling it; several are
/// scaled until all can be seen. While something runs all sizes stay, since the pictures of one
/// movie are of one size.
class WorkAreaFitter {
public:
    WorkAreaFitter(host::Application& application, const DrawingArea& area)
        : m_application(application), m_area(area) {}

    /// To be called whenever either may have changed; does nothing when all is as it should be.
    void fit();

private:
    bool isFilledByOneFrame() const;
    double pixelsPerInch(double width, double height) const;

    host::Application& m_application;
    const DrawingArea& m_area;
};

} // namespace corvane::gui
