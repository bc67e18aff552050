// The add-on as a host knows it, without the rest of its start.
#pragma once

#include "addon/base/AddOnID.h"
#include "addon/base/AddOnName.h"

#include <string>

namespace corvane::test {

// Registers the add-on with the host of the test.
class RegisteredAddOn {
public:
    RegisteredAddOn() {
        corutiltools::AddOnID =
            CorUtilAddOnRegister(110, corutiltools::AddOnName, "1", "Corvane, Inc.");
    }
    ~RegisteredAddOn() { corutiltools::AddOnID = nullptr; }

    RegisteredAddOn(const RegisteredAddOn&) = delete;
    RegisteredAddOn& operator=(const RegisteredAddOn&) = delete;
};

// What the trace says of its locks.
inline const std::string lockStart = "CorUtilLockStart(\"Key Frame Animation\")";
inline const std::string lockFinish = "CorUtilLockFinish(\"Key Frame Animation\")";

} // namespace corvane::test
