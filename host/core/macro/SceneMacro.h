// What the page shows, as a macro that shows it again.
#pragma once

#include "host/core/page/View3D.h"

#include <string>
#include <vector>

namespace corvane::host {

class Application;

/// Lines that bring a host that was just started to what this one shows: frames, data, styles,
/// views, solution times, and the export set-up. Files are named absolutely.
std::vector<std::string> sceneMacro(Application& application);

/// The words behind VIEW that set this view: "SET", "Psi", "=", ...
std::vector<std::string> viewWords(const View3D& view);

} // namespace corvane::host
