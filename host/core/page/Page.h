// The paper, and the stack of frames on it.
#pragma once

#include "host/core/page/Frame.h"

#include <memory>
#include <optional>
#include <vector>

namespace corvane::host {

/// What the window, or the picture of a batch run, shows of the paper.
struct WorkArea {
    int width = 1280; ///< pixels
    int height = 720;
    double pixelsPerInch = 160.0;

    friend bool operator==(const WorkArea&, const WorkArea&) = default;
};

class Page {
public:
    Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    WorkArea workArea;

    /// Adds a frame on top of the stack and makes it active.
    Frame& createFrame(Placement placement);
    /// The frame below on the stack becomes active. False: no such frame.
    bool deleteFrame(long id);

    /// From the top of the stack down.
    const std::vector<std::unique_ptr<Frame>>& frames() const { return m_frames; }
    Frame* active() const { return m_active; } ///< null without frames
    Frame* find(long id) const;

    /// None of these draws. False: no such frame, or no frame at all.
    bool activate(long id); ///< keeps the order of the stack
    bool activateTop();
    bool pushTop(); ///< the top frame goes to the back; the new top becomes active
    /// To the top or to the back of the stack; which frame is active stays.
    bool raise(long id);
    bool lower(long id);

    /// A walk over the frames, from the top down, for looking only: while it lasts, current() is
    /// the frame of the walk instead of the active one. next() is false after the last frame.
    void startWalk();
    bool nextOfWalk();
    void endWalk();
    Frame* current() const;

    /// Pixels of a length on the paper, rounded to 1e-9 relative so that 800 never arrives as
    /// 799.99….
    double toPixels(double inches) const;
    double toInches(double pixels) const;

    /// The part of the paper that a region shows, in inches. Without frames: the work area's.
    Placement regionOf(ExportRegion_e region) const;

private:
    std::vector<std::unique_ptr<Frame>> m_frames;
    Frame* m_active = nullptr;
    std::optional<std::size_t> m_walk;
    long m_lastId = 0;
};

} // namespace corvane::host
