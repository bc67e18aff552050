#include "host/core/process/HelperRequest.h"

#include "host/core/process/Socket.h"

#include <type_traits>

namespace corvane::host {

namespace {

// Both sides are the same program, so numbers are sent as they lie in memory.

/// What is sent first, with the descriptors.
struct Header {
    HelperLimits limits;
    std::uint64_t textCount = 0; ///< the task's name, and its arguments
    std::uint64_t size = 0;      ///< of all that follows
};
static_assert(std::is_trivially_copyable_v<Header>);

void append(std::string& bytes, const std::string& text) {
    const std::uint64_t size = text.size();
    bytes.append(reinterpret_cast<const char*>(&size), sizeof size);
    bytes += text;
}

std::string takeText(const std::string& bytes, std::size_t& place) {
    std::uint64_t size = 0;
    bytes.copy(reinterpret_cast<char*>(&size), sizeof size, place);
    place += sizeof size;
    std::string text = bytes.substr(place, size);
    place += size;
    return text;
}

} // namespace

int sendRequest(int stream, const HelperRequest& request, const std::vector<int>& descriptors) {
    std::string bytes;
    append(bytes, request.task);
    for (const std::string& argument : request.arguments) {
        append(bytes, argument);
    }
    const Header header{request.limits, 1 + request.arguments.size(), bytes.size()};
    const int error = sendAll(stream, &header, sizeof header, descriptors);
    return error != 0 ? error : sendAll(stream, bytes.data(), bytes.size());
}

bool receiveRequest(int stream, HelperRequest& request, std::vector<Descriptor>& descriptors) {
    Header header;
    if (!receiveAll(stream, &header, sizeof header, &descriptors)) {
        return false;
    }
    std::string bytes(header.size, '\0');
    if (!receiveAll(stream, bytes.data(), bytes.size())) {
        return false;
    }
    std::size_t place = 0;
    request.limits = header.limits;
    request.task = takeText(bytes, place);
    for (std::uint64_t i = 1; i < header.textCount; ++i) {
        request.arguments.push_back(takeText(bytes, place));
    }
    return true;
}

} // namespace corvane::host
