// An add-on that registers itself.
#include "host/core/Host.h"

extern "C" __attribute__((visibility("default"))) void InitCorAddOn113() {
    corvane::host::Host::current()->session().addOns().add({110, "Well behaved", "1.0", "tests"});
}
