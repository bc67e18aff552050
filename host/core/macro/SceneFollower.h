// What changes without a command, as lines of the macro that is being recorded.
#pragma once

#include "host/core/page/Page.h"

#include <map>

namespace corvane::host {

class Application;

/// The mouse turns views, add-ons set views and times, windows are resized: none of it is a
/// command. While a macro is being recorded, this compares the page with what the macro knows of
/// it. It follows the active frame; that an add-on activates or restacks frames is not noticed.
class SceneFollower {
public:
    /// Listens to the application's recorder, and must live as long.
    explicit SceneFollower(Application& application);

    /// Records what has changed since remember(). Nothing while work is under way: what that leads
    /// to is known when it has ended.
    void catchUp();
    /// The macro knows the page as it is now.
    void remember();

    /// Round each command of the language. isRecorded: what it does is in the macro, as a line of
    /// its own; it is, too, when an add-on has recorded a command meanwhile.
    void commandBegins();
    void commandEnded(bool isRecorded);

private:
    struct Seen {
        View3D view;
        double solutionTime = 0.0;
    };

    void catchUpWorkArea();
    void catchUpFrame(const Frame& frame, const Seen& seen);

    Application& m_application;
    bool m_hasAddOnRecorded = false;
    WorkArea m_workArea;
    std::map<long, Seen> m_frames; ///< by number
};

} // namespace corvane::host
