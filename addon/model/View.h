// One camera position of the host's 3D view.
#pragma once

#include <string>

namespace corvane::corutiltools {

// Where the viewer stands (host data coordinates), how the view is turned (degrees, any value) and
// how wide it is without perspective (host data units). A plain value; field of view and
// perspective are the host's own and not part of it.
class View {
public:
    // All seven values are 0.
    View() = default;
    View(double x, double y, double z, double psi, double theta, double alpha, double width);

    // Copies the other's values into this one and leaves the other alone: a one-way copy, not an
    // exchange, in spite of its name.
    void swap(const View& other);

    double x() const { return m_x; }
    double y() const { return m_y; }
    double z() const { return m_z; }
    double psi() const { return m_psi; }
    double theta() const { return m_theta; }
    double alpha() const { return m_alpha; }
    double width() const { return m_width; }

    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }
    void setZ(double z) { m_z = z; }
    void setPsi(double psi) { m_psi = psi; }
    void setTheta(double theta) { m_theta = theta; }
    void setAlpha(double alpha) { m_alpha = alpha; }
    void setWidth(double width) { m_width = width; }

    // Takes over the host's current view. Throws KeyFrameError unless the active frame is a 3D
    // Cartesian plot, and then leaves the record as it was.
    void storeCurrentView();

    // Makes this the view of the host's active frame, under the lock and with drawing suspended.
    // Refused writes are ignored. The perspective flag comes out as it was, off if it could not be
    // read.
    void apply() const;

    // One line of all seven values with two decimals.
    std::string displayString() const;

private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    double m_psi = 0.0;
    double m_theta = 0.0;
    double m_alpha = 0.0;
    double m_width = 0.0;
};

// A flight holds one View for each of its frames, so nothing may be added to them.
static_assert(sizeof(View) == 7 * sizeof(double));

// Exact comparison of all seven values; a view with a NaN in it equals nothing, not even itself.
bool operator==(const View& left, const View& right);

// Every one of the seven values divided, angles and width included. A divisor of 0 gives infinities
// or NaN.
View operator/(const View& view, double divisor);

// The host's current view; see View::storeCurrentView for errors.
View GetCurrentView();

} // namespace corvane::corutiltools
