// Looks after each action whether the add-on kept the rules.
#pragma once

#include "host/memory/MemoryHost.h"
#include "host/validate/Journal.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace corvane::validate {

/// Tells the journal each rule that was broken, once for each kind of action, and puts the host
/// back in order.
class Judge {
public:
    Judge(memory::MemoryHost& host, Journal& journal) : m_host(host), m_journal(journal) {}

    void startAction();
    void endAction(const Action& action);
    /// No dialog is up, and nothing waits to be done.
    void rest();
    /// The host has told its end.
    void endAll();

    void broken(Rule rule, const Action& action, const std::string& what);

private:
    void judgeComplaints(const Action& action);
    void judgeProgress(const Action& action);
    void judgeMovie(const Action& action);
    void judgeMemory(const Action& action);

    memory::MemoryHost& m_host;
    Journal& m_journal;
    std::set<std::tuple<Rule, std::string, std::string>> m_told;
    std::size_t m_heldBefore = 0;
    Action m_startOfMovie;
    bool m_wasRecording = false;
    /// How often an action went well, and how often the add-on had more of the host's memory after
    /// it.
    struct Growth {
        std::size_t times = 0;
        std::size_t grew = 0;
    };
    std::map<std::string, Growth> m_growth;
    std::vector<Action> m_grewOnFailure;
};

} // namespace corvane::validate
