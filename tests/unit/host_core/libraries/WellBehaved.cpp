// An add-on that registers itself.
#include "host/core/Application.h"

extern "C" __attribute__((visibility("default"))) void InitCorAddOn113() {
    corvane::host::Application::current()->addOns().add({110, "Well behaved", "1.0", "tests"});
}
