// How the parts of the host call add-ons.
#pragma once

#include <functional>
#include <string>

namespace corvane::host {

/// Makes a call into an add-on. what says which, for the trace: "idle work of libFlight.so". Empty
/// where a part stands alone; the application puts its exception wall here.
using AddOnCaller = std::function<void(const std::string& what, const std::function<void()>& call)>;

/// "what of owner"; an owner that is not known is left out.
inline std::string ofOwner(const std::string& what, const std::string& owner) {
    return owner.empty() ? what : what + " of " + owner;
}

} // namespace corvane::host
