// What the page shows, as a macro that shows it again.
#pragma once

#include "host/core/page/Page.h"

#include <string>
#include <vector>

namespace corvane::host {

class MacroRecorder;
class Session;

/// Lines that bring a host that was just started to what this one shows: the size of the work area,
/// frames with their numbers, data, styles, views, solution times, and the export set-up. Files are
/// named absolutely.
std::vector<std::string> sceneMacro(Session& session);

/// The words behind VIEW that set this view: "SET", "Psi", "=", ...
std::vector<std::string> viewWords(const View3D& view);
/// The words behind WORKAREA that set this size.
std::vector<std::string> workAreaWords(const WorkArea& area);

/// Records from now on, beginning with all that is there by now.
void startRecording(Session& session, MacroRecorder& recorder);

} // namespace corvane::host
