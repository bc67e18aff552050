// The library that windows are made with.
#pragma once

#include <string>

namespace corvane::gui {

/// Its version, and the plug-ins that connect it with displays: "Qt 6.4.2 for xcb,
/// wayland-generic". Needs no display, and that there is no QCoreApplication yet.
std::string windowLibraries();

} // namespace corvane::gui
