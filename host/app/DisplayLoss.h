// The end of the display server, which Qt answers by ending the process at once.
#pragma once

#include <functional>

namespace corvane::app {

/// While such an object lives, what has to be rescued is rescued before that, and the process ends
/// with a sentence and ExitFailed. Other messages of Qt go where they went. At most one at a time.
class DisplayLoss {
public:
    /// rescue: called from within Qt's event handling, so that it shows no windows.
    explicit DisplayLoss(std::function<void()> rescue);
    ~DisplayLoss();
    DisplayLoss(const DisplayLoss&) = delete;
    DisplayLoss& operator=(const DisplayLoss&) = delete;
};

} // namespace corvane::app
