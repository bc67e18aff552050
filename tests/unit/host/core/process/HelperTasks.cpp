#include "tests/unit/host/core/process/HelperTasks.h"

#include "host/core/process/Socket.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

namespace corvane::test {

using host::TaskInput;

const host::Task answerNumber("answer a number", [](const TaskInput& input) {
    return std::stoi(input.arguments.at(0));
});

const host::Task raiseSignal("raise a signal", [](const TaskInput& input) {
    return std::raise(std::stoi(input.arguments.at(0)));
});

const host::Task throwError("throw an error",
                            [](const TaskInput&) -> int { throw std::runtime_error("no"); });

const host::Task waitForEver("wait for ever", [](const TaskInput&) -> int {
    for (;;) {
        pause();
    }
});

const host::Task computeForEver("compute for ever", [](const TaskInput&) -> int {
    for (;;) {
        std::clock();
    }
});

const host::Task takeMemory("take memory", [](const TaskInput& input) {
    void* volatile taken = std::malloc(std::stoul(input.arguments.at(0)));
    return taken == nullptr ? 1 : 0;
});

const host::Task echoArguments("echo the arguments", [](const TaskInput& input) {
    const int socket = input.descriptors.at(0).get();
    for (const std::string& argument : input.arguments) {
        const std::size_t size = argument.size();
        host::sendAll(socket, &size, sizeof size);
        host::sendAll(socket, argument.data(), size);
    }
    return static_cast<int>(input.arguments.size());
});

const host::Task copyText("copy a text", [](const TaskInput& input) {
    std::array<char, 4096> text{};
    const ssize_t size = read(input.descriptors.at(0).get(), text.data(), text.size());
    for (std::size_t i = 1; i < input.descriptors.size(); ++i) {
        if (write(input.descriptors[i].get(), text.data(), static_cast<std::size_t>(size)) !=
            size) {
            return -1;
        }
    }
    return static_cast<int>(input.descriptors.size() - 1);
});

const host::Task askForSignal("ask for a signal", [](const TaskInput& input) {
    const int signal = std::stoi(input.arguments.at(0));
    sigset_t blocked;
    sigprocmask(SIG_SETMASK, nullptr, &blocked);
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return sigismember(&blocked, signal) == 1 || action.sa_handler != SIG_DFL ? 1 : 0;
});

const host::Task countServerFiles("count the server's files", [](const TaskInput&) {
    const auto folder = "/proc/" + std::to_string(getppid()) + "/fd";
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
});

const host::Task countServerChildren("count the server's children", [](const TaskInput&) {
    const std::string server = std::to_string(getppid());
    std::ifstream children("/proc/" + server + "/task/" + server + "/children");
    return static_cast<int>(
        std::distance(std::istream_iterator<pid_t>(children), std::istream_iterator<pid_t>()));
});

} // namespace corvane::test
