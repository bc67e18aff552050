// Which add-ons a run loads.
#pragma once

#include <functional>
#include <string>

namespace corvane::host {
class Session;
}

namespace corvane::app {

struct Options;

/// Loads Key Frame Animation, which comes with the program, and the libraries of the options beside
/// it; one of the same file name takes its place. Throws HostError for a library that was asked
/// for. The program works without the one that comes with it, so that failing is only told. False
/// when an add-on failed as it started: the run carries on without what that did not come to.
bool loadAddOns(host::Session& session, const Options& options,
                const std::function<void(const std::string&)>& tell);

} // namespace corvane::app
