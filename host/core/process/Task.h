// What helpers can be asked to do.
#pragma once

#include "host/core/process/Descriptor.h"

#include <string>
#include <vector>

namespace corvane::host {

/// What a helper is given.
struct TaskInput {
    std::vector<std::string> arguments;  ///< any bytes
    std::vector<Descriptor> descriptors; ///< copies of the client's, in its order
};

/// Work that a helper does, registered under a name for the life of the program. The server is a
/// copy of the program from before main() did anything and knows the tasks of that moment, so tasks
/// are constants at namespace scope: one that is made after a server was started, or under a name
/// that is taken, throws std::logic_error.
class Task {
public:
    /// Answers the exit code of the helper, 0 to 255. It finds the state that the program had when
    /// the server was started: nothing is read, no window is open, and what a library was told
    /// since it must be told again. The working folder is that of the start too.
    using Work = int (*)(const TaskInput& input);

    Task(const std::string& name, Work work);

    const std::string& name() const { return m_name; }

private:
    std::string m_name;
};

/// The exit code of a helper whose work threw.
constexpr int exitAfterException = 255;

/// For the server: null when there is none of this name.
Task::Work workOfTask(const std::string& name);
/// From now on there can be no new tasks.
void closeTaskList();

} // namespace corvane::host
