// An add-on that calls exit() does not end a run as if all had been done.
#pragma once

namespace corvane::app {

/// From now on the process ends with a sentence and ExitFailed when exit() is called in an add-on.
void distrustExitOfAddOns();

} // namespace corvane::app
