// Loads the libraries of add-ons.
#pragma once

#include <string>

namespace corvane::host {

class Session;

/// Loads the library, after a trial in a process of its own, and calls its entry point behind the
/// guard. The library stays loaded until the process ends, since its objects are destroyed then.
/// What the entry point throws is shown to the user, and the add-on stays with what it has
/// registered by then; false then. Throws HostError for a file that is no add-on: the library, and
/// what is wrong with it.
bool loadAddOn(Session& session, const std::string& library);

} // namespace corvane::host
