// Bytes and descriptors between processes of this program.
#pragma once

#include "host/core/process/Descriptor.h"

#include <cstddef>
#include <vector>

namespace corvane::host {

struct SocketPair {
    Descriptor first;
    Descriptor second;
};

/// Two connected sockets, SOCK_STREAM or SOCK_SEQPACKET, that programs run from here do not get.
/// Throws a HostError.
SocketPair connectedSockets(int type);

/// What the kernel passes in one message.
constexpr std::size_t mostDescriptors = 253;

/// Sends all bytes; the descriptors go with the first of them. 0, or the number of the error; a
/// receiver that is gone raises no signal.
int sendAll(int socket, const void* bytes, std::size_t size,
            const std::vector<int>& descriptors = {});

/// Receives exactly that many bytes. False when the other side has gone before, or when descriptors
/// were lost because there may be no more of them here. Descriptors that came are added to the
/// list; there must be one if the other side sends any.
bool receiveAll(int socket, void* bytes, std::size_t size,
                std::vector<Descriptor>* descriptors = nullptr);

} // namespace corvane::host
