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
};

/// bin/corvane of this build. The arguments do not go through a shell.
class Program {
public:
    explicit Program(const std::vector<std::string>& arguments);
    ~Program(); ///< kills the program if it still runs
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Reads standard error until it holds the text. False: it ended without saying so.
    bool waitForError(const std::string& text);
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

ProgramResult runProgram(const std::vector<std::string>& arguments);

} // namespace corvane::test
