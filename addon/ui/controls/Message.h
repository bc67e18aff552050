// Messages to the user, under the host's lock.
#pragma once

#include <string>

namespace corvane::corutiltools {

// Both return when the user has read them.
void showErrorMessage(const std::string& message);
void showNotice(const std::string& message);

} // namespace corvane::corutiltools
