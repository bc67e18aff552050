// How the parts of the host call add-ons.
#pragma once

#include <functional>
#include <string>

namespace corvane::host {

/// Makes a call into an add-on. what says which, for the trace: "idle work of libFlight.so". The
/// session's guards against what add-ons throw and leave behind. Never empty.
using AddOnCaller = std::function<void(const std::string& what, const std::function<void()>& call)>;

/// For parts that stand alone: nothing stands between the host and the add-on.
inline void callPlainly(const std::string& /*what*/, const std::function<void()>& call) {
    call();
}

/// "what of owner"; an owner that is not known is left out.
inline std::string ofOwner(const std::string& what, const std::string& owner) {
    return owner.empty() ? what : what + " of " + owner;
}

} // namespace corvane::host
