// The three files that every process should have.
#include "host/app/StandardStreams.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace corvane::app {

void holdStandardStreams() {
    // In this order each takes its own number, the lowest that is free.
    for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(file, F_GETFD) < 0 && errno == EBADF) {
            ::open("/dev/null", file == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

} // namespace corvane::app
