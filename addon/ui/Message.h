// Messages to the user, under the host's lock.
#pragma once

#include <string>

namespace corvane::corutiltools {

// Both return when the user has read them.
void showErrorMessage(std::string const& message);
void showNotice(std::string const& message);

} // namespace corvane::corutiltools
