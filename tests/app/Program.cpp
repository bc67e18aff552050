// Runs the program as a user does, and keeps what it said.
#include "tests/app/Program.h"

#include "tests/support/Folders.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvane::test {
namespace {

const std::string program = builtFile("bin/corvane");

struct Pipe {
    int readEnd = -1;
    int writeEnd = -1;
    Pipe() {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        readEnd = ends[0];
        writeEnd = ends[1];
    }
    Pipe(int read, int write) : readEnd(read), writeEnd(write) {}
};

/// A pipe whose end to write to is a terminal.
Pipe terminal() {
    const int readEnd = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (readEnd < 0 || grantpt(readEnd) != 0 || unlockpt(readEnd) != 0) {
        throw std::runtime_error("no terminal");
    }
    return {readEnd, open(ptsname(readEnd), O_RDWR | O_NOCTTY)};
}

pid_t spawn(const std::vector<std::string>& command, const Pipe& output, const Pipe& errors) {
    std::vector<char*> argv;
    for (const std::string& word : command) {
        argv.push_back(const_cast<char*>(word.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", 0, 0);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.writeEnd, STDERR_FILENO);
    for (const int end : {output.readEnd, output.writeEnd, errors.readEnd, errors.writeEnd}) {
        posix_spawn_file_actions_addclose(&actions, end);
    }
    pid_t pid = -1;
    const int failure = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(output.writeEnd);
    close(errors.writeEnd);
    if (failure != 0) {
        throw std::runtime_error("cannot start " + command[0]);
    }
    return pid;
}

// False, and the end closed, when there is nothing more to come.
bool drain(int& end, std::string& text) {
    std::array<char, 4096> buffer{};
    const ssize_t count = read(end, buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
        return true;
    }
    close(end);
    end = -1;
    return false;
}

} // namespace

Surroundings inShell(const std::string& commands) {
    return {.wrapper = {"/bin/sh", "-c", commands, "sh"}};
}

Program::Program(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    const Pipe output;
    const Pipe errors = surroundings.hasTerminal ? terminal() : Pipe();
    std::vector<std::string> command = surroundings.wrapper;
    command.push_back(program);
    command.insert(command.end(), arguments.begin(), arguments.end());
    m_pid = spawn(command, output, errors);
    m_outputPipe = output.readEnd;
    m_errorPipe = errors.readEnd;
}

Program::~Program() {
    if (m_pid > 0) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    for (const int end : {m_outputPipe, m_errorPipe}) {
        if (end >= 0) {
            close(end);
        }
    }
}

bool Program::readSome() {
    std::array<pollfd, 2> ends{pollfd{m_outputPipe, POLLIN, 0}, pollfd{m_errorPipe, POLLIN, 0}};
    if (m_outputPipe < 0 && m_errorPipe < 0) {
        return false;
    }
    while (poll(ends.data(), ends.size(), -1) < 0 && errno == EINTR) {
    }
    if (ends[0].revents != 0) {
        drain(m_outputPipe, m_result.output);
    }
    if (ends[1].revents != 0) {
        drain(m_errorPipe, m_result.errors);
    }
    return true;
}

bool Program::waitForError(const std::string& text) {
    while (m_result.errors.find(text) == std::string::npos) {
        if (!readSome()) {
            return false;
        }
    }
    return true;
}

void Program::closeErrors() {
    close(m_errorPipe);
    m_errorPipe = -1;
}

void Program::signal(int number) const {
    kill(m_pid, number);
}

ProgramResult Program::finish() {
    while (readSome()) {
    }
    int status = 0;
    rusage used{};
    wait4(m_pid, &status, 0, &used);
    m_result.peakMemory = used.ru_maxrss;
    m_pid = -1;
    m_result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return m_result;
}

ProgramResult runProgram(const std::vector<std::string>& arguments,
                         const Surroundings& surroundings) {
    return Program(arguments, surroundings).finish();
}

} // namespace corvane::test
