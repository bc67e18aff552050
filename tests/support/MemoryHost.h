// The host in memory, under the names that tests use.
#pragma once

#include "host/memory/MemoryHost.h"

namespace corvane::test {

using namespace memory;

} // namespace corvane::test
