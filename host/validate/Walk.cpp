#include "host/validate/Walk.h"

#include "host/validate/CpuLimit.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iterator>
#include <string_view>

namespace corvane::validate {

namespace {

using Turn = Step::Turn;

/// Work of the idle queue may ask for more of it for ever.
constexpr int mostIdleRuns = 20;
constexpr std::size_t leastRows = 2;
/// What adds to a list is done so often, for what needs several rows.
constexpr int timesForRows = 3;
/// To do a whole round again, up to what has become impossible, takes long.
constexpr int mostReplays = 8;
/// A dialog within a dialog within a dialog.
constexpr int mostOpeners = 5;
/// A dialog that is left may bring another one up.
constexpr int mostModals = 20;
constexpr std::size_t mostRecorded = 30;
constexpr std::size_t mostStepsOfRound = 2000;

/// No host fails to tell the state of a control that it has made.
bool canFail(std::string_view operation) {
    return !operation.starts_with("CorGUI") || operation.starts_with("CorGUIDialogCreate");
}

/// All of the first checks, and fewer and fewer of thousands.
std::size_t following(std::size_t n) {
    constexpr std::size_t allUpTo = 48;
    return n < allUpTo ? n + 1 : n + n / 8;
}

/// An action may make many thousand calls: the first ones fail, and of the others some of each
/// operation.
std::vector<std::size_t> worthFailing(const std::vector<std::string>& operations) {
    constexpr std::size_t allUpTo = 64;
    constexpr std::size_t mostOfOne = 4;
    std::map<std::string, std::size_t> times;
    std::vector<std::size_t> numbers;
    for (std::size_t n = 1; n <= operations.size(); ++n) {
        const std::string& operation = operations[n - 1];
        if (canFail(operation) && (++times[operation] <= mostOfOne || n <= allUpTo)) {
            numbers.push_back(n);
        }
    }
    return numbers;
}

constexpr const char* stopped = "when the user stops it";

} // namespace

std::string nameToAvoid(const Action& action, const std::string& operation) {
    const bool wasStopped = action.condition.starts_with(stopped);
    return action.what + ", " + (wasStopped ? stopped : operation);
}

Walk::Walk(memory::MemoryHost& host, Journal& journal, Judge& judge, const Avoided& avoided,
           unsigned cpuSeconds)
    : m_host(host),
      m_journal(journal),
      m_judge(judge),
      m_avoided(avoided),
      m_cpuSeconds(cpuSeconds) {}

void Walk::answer(bool yes) {
    m_host.prompts().answer("", yes);
    m_host.prompts().answerFilesIn(yes ? std::filesystem::current_path().string() : "");
}

void Walk::act(const std::string& what, const std::function<void()>& work) {
    const Action action{what, ""};
    perform(action, work);
    m_judge.endAction(action);
}

void Walk::perform(const Action& action, const std::function<void()>& work) {
    m_journal.at(action);
    allowComputing(m_cpuSeconds);
    m_judge.startAction();
    try {
        work();
        for (int run = 0; run < mostIdleRuns && !m_host.session().idle().isEmpty(); ++run) {
            m_host.runIdle();
        }
    } catch (const std::exception&) { // the host's own, such as that a macro line has failed
    }
}

std::vector<Step> Walk::steps() {
    std::vector<Step> all = stepsOfUser(m_host, m_manner.order);
    for (std::vector<Step> more : {stepsOfMacros(m_host, m_recorded), stepsOfPage(m_host)}) {
        std::move(more.begin(), more.end(), std::back_inserter(all));
    }
    std::erase_if(all, [&](const Step& step) { return isAvoided({step.what, ""}); });
    return all;
}

const Step* Walk::next(const std::vector<Step>& steps, const std::set<std::string>& done,
                       Turn turn) const {
    const auto isWanted = [&](const Step& step) {
        return step.turn == turn && done.count(step.what) == 0 && step.isPossible();
    };
    const auto first = std::find_if(steps.begin(), steps.end(), isWanted);
    if (first == steps.end()) {
        return nullptr;
    }
    // OK comes before Cancel.
    const bool isCancel = turn == Turn::Leave && !m_manner.agrees;
    return isCancel ? &*std::find_if(steps.rbegin(), steps.rend(), isWanted) : &*first;
}

const Step* Walk::next(const std::vector<Step>& steps, const std::set<std::string>& done) const {
    for (const Turn turn : {Turn::Use, Turn::Leave, Turn::Last}) {
        if (const Step* const step = next(steps, done, turn)) {
            return step;
        }
    }
    return nullptr;
}

/// One frame with data, whatever the page has become.
void Walk::showData() {
    host::Session& session = m_host.session();
    const host::Frame* const frame = session.page().active();
    const bool isUsable = frame != nullptr && session.page().frames().size() == 1 &&
                          frame->isSpatial() && frame->data() != nullptr;
    if (isUsable) {
        return;
    }
    act("the state change after a frame with data", [&] {
        while (const host::Frame* const old = session.page().active()) {
            session.deleteFrame(old->id());
        }
        m_host.addFrame();
        session.pageChanged(StateChange_FrameCreated);
        session.pageChanged(StateChange_DataSetAttached);
    });
}

void Walk::round(const Manner& manner) {
    m_manner = manner;
    showData();
    answer(manner.agrees);
    m_host.program().recorder().start();
    std::set<std::string> done;
    while (done.size() < mostStepsOfRound) {
        const std::vector<Step> all = steps();
        const auto hasUse = [&] { return next(all, done, Turn::Use) != nullptr; };
        if (!hasUse() && prepareFor(hasUse)) {
            continue;
        }
        const Step* const step = next(all, done);
        if (step == nullptr) {
            break;
        }
        done.insert(step->what);
        remember(*step, m_known);
        const std::set<std::string> possible = possibleSteps();
        performOften(*step);
        noteOpened(*step, possible);
        refill();
    }
    noteRecorded();
    leaveModals();
    m_judge.rest();
}

void Walk::performOften(const Step& step) {
    for (int times = 0; times < timesForRows && step.isPossible(); ++times) {
        const std::size_t rows = rowCount();
        const Action action{step.what, ""};
        perform(action, step.perform);
        m_judge.endAction(action);
        ++m_counts.actions;
        if (rowCount() <= rows) {
            return;
        }
        remember(step, m_adding);
    }
}

/// Most of what can be done needs rows in a list, whatever has been deleted.
void Walk::refill() {
    const std::vector<Step> adding = m_adding;
    for (const Step& step : adding) {
        if (rowCount() < leastRows) {
            performOften(step);
        }
    }
}

/// What is dimmed may need rows, or others to be selected.
bool Walk::prepareFor(const std::function<bool()>& isPossible) {
    refill();
    for (const Step& step : steps()) {
        if (isPossible()) {
            return true;
        }
        if (step.selects) {
            performOften(step);
        }
    }
    return isPossible();
}

/// A dimmed list may tell in a row of its own that it is empty.
std::size_t Walk::rowCount() {
    std::size_t count = 0;
    for (const auto& control : m_host.session().controls().all()) {
        const auto* const list = dynamic_cast<const host::List*>(control.get());
        count += list != nullptr && !host::isDimmed(*list) ? list->rows.size() : 0;
    }
    return count;
}

void Walk::remember(const Step& step, std::vector<Step>& steps) {
    const auto isSame = [&](const Step& known) { return known.what == step.what; };
    if (std::none_of(steps.begin(), steps.end(), isSame)) {
        steps.push_back(step);
    }
}

void Walk::noteRecorded() {
    for (const std::string& line : m_host.recordedCommands()) {
        const bool isKnown =
            std::find(m_recorded.begin(), m_recorded.end(), line) != m_recorded.end();
        if (!isKnown && m_recorded.size() < mostRecorded) {
            m_recorded.push_back(line);
        }
    }
}

void Walk::failEverywhere() {
    for (const Step& step : m_known) {
        showData();
        const std::size_t checks = m_host.status().checks();
        failEachCallOf(step);
        if (m_host.status().checks() > checks) {
            stopAtEachCheckOf(step);
        }
    }
    leaveModals();
    m_judge.rest();
}

bool Walk::mayFail(const Action& action, const std::string& operation) {
    if (!canFail(operation) || isAvoided(action, operation)) {
        return false;
    }
    ++m_counts.failures;
    m_journal.fails(operation);
    return true;
}

std::vector<std::size_t> Walk::callsToFail(const Step& step) {
    m_host.keepCandidates();
    performOften(step);
    return worthFailing(m_host.takeCandidates());
}

void Walk::failEachCallOf(const Step& step) {
    if (!reach(step)) {
        return;
    }
    for (const std::size_t n : callsToFail(step)) {
        if (!reach(step)) {
            return;
        }
        const std::string condition = "when its call " + std::to_string(n);
        Action action{step.what, ""}; // until the call has failed
        m_host.askBeforeFailing([&](const std::string& operation) {
            const bool fails = mayFail({step.what, condition}, operation);
            action.condition = fails ? condition + ", " + operation + ", of the host fails" : "";
            return fails;
        });
        m_host.failAt(n);
        perform({step.what, condition}, step.perform);
        m_host.failAt(0);
        m_judge.endAction(action);
    }
}

void Walk::stopAtEachCheckOf(const Step& step) {
    bool wasReached = true;
    for (std::size_t n = 1; wasReached && !isAvoided({step.what, stopped}); n = following(n)) {
        if (!reach(step)) {
            break;
        }
        const Action action{step.what, std::string(stopped) + " at check " + std::to_string(n)};
        m_host.stopAtCheck(n);
        perform(action, step.perform);
        wasReached = m_host.status().hasStoppedAt();
        m_counts.stops += wasReached ? 1 : 0;
        m_judge.endAction(action);
        m_host.stopAtCheck(0);
        m_host.status().forgetStop();
    }
}

/// What the user does to make it possible is what he did before.
bool Walk::reach(const Step& step, int depth) {
    if (depth == 0) {
        refill();
    }
    if (step.isPossible()) {
        return true;
    }
    if (depth == 0) {
        leaveModals();
        refill();
    }
    const auto opener = m_openers.find(step.what);
    if (opener != m_openers.end() && depth < mostOpeners) {
        const Step opening = opener->second;
        if (!step.isPossible() && reach(opening, depth + 1)) {
            performOften(opening);
        }
    }
    return step.isPossible() || (depth == 0 && replayUntil(step));
}

bool Walk::replayUntil(const Step& step) {
    if (prepareFor(step.isPossible)) {
        return true;
    }
    if (++m_replays[step.what] > mostReplays) {
        return false;
    }
    for (const Step& earlier : m_known) {
        if (step.isPossible() || earlier.what == step.what) {
            break;
        }
        if (earlier.isPossible() && earlier.turn != Turn::Last) {
            performOften(earlier);
        }
    }
    return prepareFor(step.isPossible);
}

std::set<std::string> Walk::possibleSteps() {
    std::set<std::string> names;
    for (const Step& step : steps()) {
        if (step.isPossible()) {
            names.insert(step.what);
        }
    }
    return names;
}

/// Of a dialog that came up, and with controls that are no longer dimmed.
void Walk::noteOpened(const Step& opening, const std::set<std::string>& possibleBefore) {
    for (const std::string& name : possibleSteps()) {
        if (possibleBefore.count(name) == 0 && name != opening.what) {
            m_openers.insert_or_assign(name, opening);
        }
    }
}

host::Dialog* Walk::modalOnTop() {
    const host::Controls& controls = m_host.session().controls();
    for (const auto& control : controls.all()) {
        auto* const dialog = dynamic_cast<host::Dialog*>(control.get());
        const bool isUp = dialog != nullptr && dialog->isModal && dialog->isUp;
        if (isUp && !controls.isBlocked(*dialog)) {
            return dialog;
        }
    }
    return nullptr;
}

void Walk::leaveModals() {
    for (int times = 0; times < mostModals; ++times) {
        host::Dialog* const dialog = modalOnTop();
        if (dialog == nullptr) {
            return;
        }
        const Action cancelling{"cancelling " + host::nameInTrace(*dialog), ""};
        leave(*dialog, cancelling);
        if (dialog->isUp) {
            if (!isAvoided(cancelling)) {
                m_judge.broken(Rule::Dialogs, cancelling, "the dialog stays");
            }
            m_host.session().controls().drop(*dialog);
        }
    }
}

/// Whatever the user answers when he is asked whether he means it.
void Walk::leave(const host::Dialog& dialog, const Action& cancelling) {
    for (const bool yes : {true, false}) {
        if (dialog.isUp && !isAvoided(cancelling)) {
            answer(yes);
            perform(cancelling, [&] { m_host.session().controlActions().dismiss(dialog.handle); });
            m_judge.endAction(cancelling);
        }
    }
    answer(m_manner.agrees);
}

} // namespace corvane::validate
