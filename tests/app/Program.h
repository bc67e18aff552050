// Runs the program as a user does, and keeps what it said.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace corvane::test {

struct ProgramResult {
    int exitCode = -1; ///< -1: it did not end by itself
    std::string output;
    std::string errors;
    long peakMemory = 0; ///< kB
};

/// What the program is run in.
struct Surroundings {
    /// A program that runs it: name and arguments, which those of the run follow.
    std::vector<std::string> wrapper{};
    bool hasTerminal = false; ///< what standard error goes to
};

/// The surroundings that a shell makes, by commands that end in: exec "$@"
Surroundings inShell(const std::string& commands);

/// bin/corvane of this build. The arguments do not go through a shell.
class Program {
public:
    explicit Program(const std::vector<std::string>& arguments,
                     const Surroundings& surroundings = {});
    ~Program(); ///< kills the program if it still runs
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Reads standard error until it holds the text. False: it ended without saying so.
    bool waitForError(const std::string& text);
    /// What it writes to standard error from now on reaches nobody.
    void closeErrors();
    void signal(int number) const;
    /// Reads both streams to their ends and waits.
    ProgramResult finish();

private:
    bool readSome();

    pid_t m_pid = -1;
    int m_outputPipe = -1;
    int m_errorPipe = -1;
    ProgramResult m_result;
};

ProgramResult runProgram(const std::vector<std::string>& arguments,
                         const Surroundings& surroundings = {});

} // namespace corvane::test
