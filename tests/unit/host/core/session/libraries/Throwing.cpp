// An add-on that takes a lock and fails when it starts.
#include "host/core/Host.h"

#include <stdexcept>

extern "C" __attribute__((visibility("default"))) void InitCorAddOn113() {
    corvane::host::Host::current()->session().locks().start(nullptr);
    throw std::runtime_error("no menus here");
}
