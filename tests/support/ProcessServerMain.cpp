// main() of tests that need helpers: the process server comes before what the tests make.
#include "host/core/process/ProcessServer.h"

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    const corvane::host::ProcessServer server;
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
