// An add-on that takes a lock and fails when it starts.
#include "host/core/Application.h"

#include <stdexcept>

extern "C" __attribute__((visibility("default"))) void InitCorAddOn113() {
    corvane::host::Application::current()->locks().start(nullptr);
    throw std::runtime_error("no menus here");
}
