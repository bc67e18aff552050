// The add-on's one exception for errors that are meant for the user.
#include "addon/base/KeyFrameError.h"

namespace corvane::corutiltools {

KeyFrameError::KeyFrameError(const std::string& message) : m_message(message) {}

KeyFrameError::~KeyFrameError() = default;

const char* KeyFrameError::what() const noexcept {
    return m_message.c_str();
}

} // namespace corvane::corutiltools
