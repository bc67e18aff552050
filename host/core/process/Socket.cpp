#include "host/core/process/Socket.h"

#include "host/core/base/HostError.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <sys/socket.h>

namespace corvane::host {

namespace {

/// Room for the descriptors of one message, aligned as the kernel wants it.
struct Attachment {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(mostDescriptors * sizeof(int))> bytes{};

    void addTo(msghdr& message, const std::vector<int>& descriptors) {
        const std::size_t size = descriptors.size() * sizeof(int);
        message.msg_control = bytes.data();
        message.msg_controllen = CMSG_SPACE(size);
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(size);
        std::memcpy(CMSG_DATA(header), descriptors.data(), size);
    }
};

void takeDescriptors(msghdr& message, std::vector<Descriptor>& taken) {
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr;
         header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const std::size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(header) + i * sizeof(int), sizeof number);
            taken.emplace_back(number);
        }
    }
}

ssize_t receiveSome(int socket, iovec part, std::vector<Descriptor>* descriptors) {
    Attachment attachment;
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (descriptors != nullptr) {
        message.msg_control = attachment.bytes.data();
        message.msg_controllen = attachment.bytes.size();
    }
    const ssize_t count = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
    if (count > 0 && descriptors != nullptr) {
        takeDescriptors(message, *descriptors);
    }
    return (message.msg_flags & MSG_CTRUNC) != 0 ? 0 : count;
}

} // namespace

SocketPair connectedSockets(int type) {
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, type | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw HostError(std::string("No connection to another process can be made: ") +
                        std::strerror(errno) + ". Close other programs, and try again.");
    }
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

int sendAll(int socket, const void* bytes, std::size_t size, const std::vector<int>& descriptors) {
    if (descriptors.size() > mostDescriptors) {
        return EINVAL;
    }
    Attachment attachment;
    iovec part{const_cast<void*>(bytes), size};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (!descriptors.empty()) {
        attachment.addTo(message, descriptors);
    }
    while (part.iov_len > 0) {
        const ssize_t count = sendmsg(socket, &message, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        if (count > 0) {
            part.iov_base = static_cast<char*>(part.iov_base) + count;
            part.iov_len -= static_cast<std::size_t>(count);
            message.msg_control = nullptr;
            message.msg_controllen = 0;
        }
    }
    return 0;
}

bool receiveAll(int socket, void* bytes, std::size_t size, std::vector<Descriptor>* descriptors) {
    iovec part{bytes, size};
    while (part.iov_len > 0) {
        const ssize_t count = receiveSome(socket, part, descriptors);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        part.iov_base = static_cast<char*>(part.iov_base) + count;
        part.iov_len -= static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace corvane::host
