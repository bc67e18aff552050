#include "host/movie/libav/LibavCheck.h"

#include "host/core/base/HostError.h"
#include "host/movie/libav/LibavLog.h"

extern "C" {
#include <libavutil/error.h>
}

#include <array>

namespace corvane::movie {

namespace {

std::string errorText(int code) {
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(code, text.data(), text.size());
    return text.data();
}

} // namespace

int LibavCheck::operator()(int code, const char* action) const {
    // Taken even on success, lest an old message explain the failure of a later call.
    const std::string message = takeLibavMessage();
    if (code >= 0) {
        return code;
    }
    const std::string detail = message.empty() ? "" : " (" + message + ")";
    fail(errorText(code) + " while " + action + detail);
}

void LibavCheck::fail(const std::string& reason) const {
    throw host::HostError("The movie \"" + m_path + "\" cannot be written: " + reason + ".");
}

} // namespace corvane::movie
