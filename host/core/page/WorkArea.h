// What is shown of the paper.
#pragma once

namespace corvane::host {

/// The paper is as wide as a work area that one frame fills, so that texts and frames look the same
/// in windows and batch runs of any size.
inline constexpr double paperWidthInches = 8.0;

/// What the window, or the picture of a batch run, shows of the paper.
struct WorkArea {
    int width = 1280; ///< pixels
    int height = 720;
    double pixelsPerInch = 1280 / paperWidthInches;

    friend bool operator==(const WorkArea&, const WorkArea&) = default;
};

} // namespace corvane::host
