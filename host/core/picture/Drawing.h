// When pictures are made: at once on request, for a movie, or when it is due.
#pragma once

#include "host/core/ports/Picture.h"

#include <cstdint>

namespace corvane::host {

class Locks;
class Page;
class Renderer;
class Screen;
class IdleTimer;

/// A change of state marks the page and draws nothing. A marked page is drawn when drawing is on
/// and no lock is held: at the release of the last lock, or at idle time. Without a screen nobody
/// would see that picture, so it is not made.
class Drawing {
public:
    Drawing(const Page& page, const Locks& locks, Renderer& renderer, Screen* screen,
            IdleTimer* idleTimer);

    /// Nests. resume() without suspend() is ignored and answers false.
    void suspend();
    bool resume();
    int suspensions() const { return m_suspensions; }
    void restoreSuspensions(int count);

    void mark();
    bool isMarked() const { return m_marked; }
    /// Asks for idle time when the page is marked and drawing is on.
    void schedule();

    /// Draws now, at any depth of locks. False, and marked, while drawing is suspended. Without a
    /// screen only the mark goes. What the screen throws is passed on.
    bool redraw(bool allFrames);
    /// Draws if the page is marked, drawing is on, no lock is held and there is a screen. To be
    /// called at the release of the last lock and at idle time.
    void drawIfDue();

    /// A picture for a movie or a file; neither marks nor unmarks.
    Picture picture(const PictureRequest& request);

    /// Pictures made so far.
    std::uint64_t renders() const { return m_renders; }

private:
    void draw(bool allFrames);

    const Page& m_page;
    const Locks& m_locks;
    Renderer& m_renderer;
    Screen* m_screen;
    IdleTimer* m_idleTimer;
    int m_suspensions = 0;
    bool m_marked = false;
    std::uint64_t m_renders = 0;
};

} // namespace corvane::host
