// The add-on's name towards the host.
#pragma once

namespace corvane::corutiltools {

// Shown in the host's list of add-ons; macros address the add-on's commands by it.
inline constexpr char AddOnName[] = "Key Frame Animation";

} // namespace corvane::corutiltools
