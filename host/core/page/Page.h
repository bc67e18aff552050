// The paper, and the stack of frames on it.
#pragma once

#include "host/core/page/Frame.h"
#include "host/core/page/PageState.h"
#include "host/core/page/WorkArea.h"

#include <memory>
#include <optional>
#include <vector>

namespace corvane::host {

class Page {
public:
    Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    WorkArea workArea;

    PageState state() const;
    /// Shows what the state says; frames that are in both stay at their addresses. Ends a walk.
    /// Numbers that were ever used are not used again.
    void putBack(const PageState& state);

    /// Frames keep their places on the paper, but one that fills the work area goes on filling it.
    void resizeWorkArea(const WorkArea& area);
    /// Also without a frame: the first one will fill it.
    bool isFilledByOneFrame() const;

    /// Adds a frame on top of the stack and makes it active.
    Frame& createFrame(Placement placement);
    /// The frame below on the stack becomes active. False: no such frame.
    bool deleteFrame(long id);

    /// Pointers to the frames, from the top of the stack down.
    std::vector<const Frame*> frames() const;
    const Frame* active() const { return m_active; } ///< null without frames
    Frame* active() { return m_active; }
    const Frame* find(long id) const; ///< null without such a frame
    Frame* find(long id);
    /// The highest number that a frame had so far; 0 without one.
    long lastId() const { return m_lastId; }

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
    const Frame* current() const;
    Frame* current();
    const Frame* currentSpatial() const; ///< current(), if it is spatial; null otherwise
    Frame* currentSpatial();

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
