#include "host/movie/libav/LibavLog.h"

#include "host/core/base/Text.h"

extern "C" {
#include <libavutil/log.h>
}

#include <array>
#include <cstdarg>
#include <mutex>
#include <utility>

namespace corvane::movie {

namespace {

thread_local std::string t_message;

void keepErrors(void* source, int level, const char* format, va_list arguments) {
    if (level > AV_LOG_ERROR) {
        return;
    }
    std::array<char, 512> line{};
    int printPrefix = 0;
    av_log_format_line2(source, level, format, arguments, line.data(),
                        static_cast<int>(line.size()), &printPrefix);
    t_message = host::trimmedAtEnd(line.data(), "\r\n. ");
}

} // namespace

void captureLibavLog() {
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(keepErrors); });
}

std::string takeLibavMessage() {
    return std::exchange(t_message, std::string());
}

} // namespace corvane::movie
