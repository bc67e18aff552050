// Where a frame lies on the paper.
#pragma once

namespace corvane::host {

/// Position of the left upper corner and size on the paper, in inches; y grows downwards.
struct Placement {
    double x = 0.0;
    double y = 0.0;
    double width = 8.0;
    double height = 4.5;

    double aspect() const { return width / height; }
    friend bool operator==(const Placement&, const Placement&) = default;
};

} // namespace corvane::host
