#include "host/core/process/Task.h"

#include <map>
#include <stdexcept>

namespace corvane::host {

namespace {

struct TaskList {
    std::map<std::string, Task::Work> works;
    bool isClosed = false;
};

/// Made when the first task is, since nothing says which namespace's constants come first.
TaskList& taskList() {
    static TaskList list;
    return list;
}

} // namespace

Task::Task(const std::string& name, Work work) : m_name(name) {
    TaskList& list = taskList();
    if (list.isClosed) {
        throw std::logic_error("the task " + name + " comes after the start of the server");
    }
    if (!list.works.emplace(name, work).second) {
        throw std::logic_error("there are two tasks named " + name);
    }
}

Task::Work workOfTask(const std::string& name) {
    const auto& works = taskList().works;
    const auto found = works.find(name);
    return found == works.end() ? nullptr : found->second;
}

void closeTaskList() {
    taskList().isClosed = true;
}

} // namespace corvane::host
