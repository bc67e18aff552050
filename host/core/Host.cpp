// Owns session and player, and knows which host is the current one.
#include "host/core/Host.h"

#include <atomic>
#include <mutex>
#include <thread>

namespace corvane::host {

namespace {

/// Never destroyed: add-ons may ask for the host when the process ends.
std::vector<Host*>& alive() {
    static auto* hosts = new std::vector<Host*>;
    return *hosts;
}

/// Only the home thread changes the list, and may read it without; others must not see it change.
std::mutex& aliveMutex() {
    static auto* mutex = new std::mutex;
    return *mutex;
}

/// Of the current host; no thread at all without one.
std::atomic<std::thread::id> homeThread{};

} // namespace

Host::Host(Ports ports) : m_session(ports), m_macros(m_session, m_recorder) {
    becomeCurrent();
}

Host::~Host() {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    std::erase(alive(), this);
    homeThread = alive().empty() ? std::thread::id() : std::this_thread::get_id();
}

void Host::becomeCurrent() {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    alive().push_back(this);
    homeThread = std::this_thread::get_id();
}

bool Host::isHomeThread() {
    const std::thread::id home = homeThread;
    return home == std::thread::id() || home == std::this_thread::get_id();
}

void Host::tellMisuse(const std::string& what) {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    if (Host* const host = current()) {
        host->session().trace().misuse(what);
    }
}

Host* Host::current() {
    return alive().empty() ? nullptr : alive().back();
}

void Host::perform(const std::string& command, const std::vector<std::string>& words) {
    m_macros.run(command, words);
}

} // namespace corvane::host
