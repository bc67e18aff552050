// Any bytes as what a user does with the dialogs of the add-on: the list of key frames is what a
// simple model of it says, and nothing stays locked, suspended, open or recorded.
#include "addon/shell/MenuOption.h"
#include "tests/fuzz/Require.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using corvane::fuzz::require;
using namespace corvane::test;
using namespace corvane::corutiltools;

// What a key frame is to the model.
struct Item {
    std::string name;
    unsigned long frames;

    friend bool operator==(const Item&, const Item&) = default;
};

using Items = std::vector<Item>;

class User {
public:
    User() {
        host.session().silentPage().workArea = {.width = 32, .height = 18, .pixelsPerInch = 2.0};
        host.session().exportSetup().imageWidth = 8;
        host.prompts().answer("", true);
        host.stopRemembering();
        DialogMain::launch();
    }

    void act(unsigned what, unsigned how);
    void check();
    void leave();

private:
    using Act = void (User::*)(unsigned how);

    MemoryDialog window() { return host.gui().dialog("Key Frame Animation"); }
    ListModelKeyFrame& model() { return DialogMain::instance().model(); }
    std::vector<long> selection() { return window().list().selection(); }
    bool isSpatial() { return host.frame().plotType == PlotType_Cartesian3D; }
    std::string file(unsigned how) const {
        return folder.file(how % 2 == 0 ? "a.keyframe" : "b.keyframe");
    }

    void capture(std::size_t position);
    void append(unsigned how);
    void insert(unsigned how);
    void update(unsigned how);
    void apply(unsigned how);
    void remove(unsigned how);
    void clear(unsigned how);
    void select(unsigned how);
    void rename(unsigned how);
    void count(unsigned how);
    void save(unsigned how);
    void open(unsigned how);
    void toggle(unsigned how);
    void setDestination(unsigned how);
    void animateAll(unsigned how);
    void animateSelected(unsigned how);
    void timeOptions(unsigned how);
    void closeOrLaunch(unsigned how);
    void changePage(unsigned how);
    void idle(unsigned how);

    static const std::array<Act, 19> acts;

    MemoryHost host;
    const RegisteredAddOn registration;
    const FreshDialogs dialogs;
    const TempFolder folder;
    Items m_items;
    std::map<std::string, Items> m_files;
};

const std::array<User::Act, 19> User::acts{&User::append,
                                           &User::insert,
                                           &User::update,
                                           &User::apply,
                                           &User::remove,
                                           &User::clear,
                                           &User::select,
                                           &User::rename,
                                           &User::count,
                                           &User::save,
                                           &User::open,
                                           &User::toggle,
                                           &User::setDestination,
                                           &User::animateAll,
                                           &User::animateSelected,
                                           &User::timeOptions,
                                           &User::closeOrLaunch,
                                           &User::changePage,
                                           &User::idle};

// What users cannot reach they cannot do: dimmed, or not up.
void User::act(unsigned what, unsigned how) {
    host.prompts().forgetFiles();
    try {
        (this->*acts[what % acts.size()])(how);
    } catch (const std::logic_error&) {
        return;
    }
}

void User::capture(std::size_t position) {
    if (isSpatial()) {
        const Item added{"View " + std::to_string(m_items.size() + 1),
                         m_items.empty() ? 30 : m_items.back().frames};
        m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(position), added);
    }
}

void User::append(unsigned how) {
    host.frame().view.psi = how;
    window().button("Append").click();
    capture(m_items.size());
}

void User::insert(unsigned /*how*/) {
    const std::vector<long> selected = selection();
    window().button("Insert").click();
    capture(selected.empty() || m_items.empty() ? m_items.size()
                                                : static_cast<std::size_t>(selected.front() - 1));
}

void User::update(unsigned /*how*/) {
    window().button("Update").click();
}

void User::apply(unsigned /*how*/) {
    window().button("Apply").click();
}

void User::remove(unsigned /*how*/) {
    std::vector<long> selected = selection();
    window().button("Delete").click();
    if (m_items.empty()) {
        return;
    }
    for (auto position = selected.rbegin(); position != selected.rend(); ++position) {
        m_items.erase(m_items.begin() + (*position - 1));
    }
}

void User::clear(unsigned /*how*/) {
    window().button("Clear").click();
    m_items.clear();
}

void User::select(unsigned how) {
    std::vector<long> positions;
    const long rows = static_cast<long>(window().list().rows().size());
    for (long position = 1; position <= rows; ++position) {
        if ((how >> (position % 8) & 1U) != 0) {
            positions.push_back(position);
        }
    }
    window().list().select(positions);
}

void User::rename(unsigned how) {
    const std::vector<long> selected = selection();
    const std::string name = how % 4 == 0 ? "" : "name " + std::to_string(how);
    window().field("View Name:").type(name);
    window().field("View Name:").commit();
    if (!name.empty() && selected.size() == 1 && !m_items.empty()) {
        m_items.at(static_cast<std::size_t>(selected.front() - 1)).name = name;
    }
}

void User::count(unsigned how) {
    static const std::array<const char*, 6> texts{"1", "3", "12", "0", "-1", "word"};
    const char* const text = texts[how % texts.size()];
    const std::vector<long> selected = selection();
    const auto field = window().field("Frame Count:");
    const std::string before = field.text();
    field.type(text);
    field.commit();
    if (how % texts.size() >= 3 || before == text || m_items.empty()) {
        return;
    }
    for (const long position : selected) {
        m_items.at(static_cast<std::size_t>(position - 1)).frames = std::stoul(text);
    }
}

void User::save(unsigned how) {
    if (m_items.empty()) {
        return;
    }
    const auto item = window().menu("File").item("Save Animation File As...");
    host.prompts().answerFile(file(how));
    item.choose();
    m_files[file(how)] = m_items;
}

void User::open(unsigned how) {
    const auto known = m_files.find(file(how));
    if (known == m_files.end()) {
        return;
    }
    const auto item = window().menu("File").item("Open Animation File...");
    host.prompts().answerFile(known->first);
    item.choose();
    m_items = known->second;
}

void User::toggle(unsigned how) {
    static const std::array<const char*, 4> labels{
        "Animate Time Concurrently", "Animate Streamtraces Concurrently", "Fade In", "Fade Out"};
    window().menu("Options").toggle(labels[how % labels.size()]).choose();
}

void User::setDestination(unsigned how) {
    window().optionMenu().choose(how % 2 + 1);
}

void User::animateAll(unsigned how) {
    constexpr std::size_t mostKeyFrames = 12;
    if (m_items.size() > mostKeyFrames) {
        return;
    }
    host.stopAtCheck(how % 64);
    window().button("Animate All").click();
    if (host.gui().hasDialog("Export Options") && host.gui().dialog("Export Options").isUp()) {
        const MemoryDialog dialog = host.gui().dialog("Export Options");
        if (how % 2 == 0) {
            host.prompts().answerFile(folder.file("flight.avi"));
            dialog.ok();
        } else {
            dialog.cancel();
        }
    }
    host.stopAtCheck(0);
}

void User::animateSelected(unsigned how) {
    constexpr std::size_t mostKeyFrames = 12;
    if (m_items.size() > mostKeyFrames) {
        return;
    }
    host.stopAtCheck(how % 64);
    window().button("Animate Selected").click();
    host.stopAtCheck(0);
}

void User::timeOptions(unsigned how) {
    window().menu("Options").item("Time Animation Options...").choose();
    const MemoryDialog dialog = host.gui().dialog("Time Animation Options");
    if (how % 2 == 0) {
        dialog.ok();
    } else {
        dialog.cancel();
    }
}

void User::closeOrLaunch(unsigned /*how*/) {
    if (window().isUp()) {
        window().close();
    } else {
        DialogMain::launch();
    }
}

void User::changePage(unsigned how) {
    switch (how % 4) {
    case 0:
        host.setPlotType(PlotType_Cartesian2D);
        break;
    case 1:
        host.setPlotType(PlotType_Cartesian3D);
        break;
    case 2:
        host.setData(nullptr);
        break;
    default:
        host.setData(makeTransientData());
    }
}

void User::idle(unsigned /*how*/) {
    host.runIdle();
}

void User::check() {
    Items shown;
    for (unsigned long index = 0; index < model().size(); ++index) {
        shown.push_back({model().name(index), model().frameCount(index)});
    }
    require(shown == m_items, "the list is what the user has made of it");
    require(host.leftBehind().empty(), "nothing is left behind");
}

void User::leave() {
    host.runIdle();
    check();
    if (!window().isUp()) {
        return;
    }
    std::vector<std::string> names;
    for (const Item& item : m_items) {
        names.push_back(item.name);
    }
    if (names.empty()) {
        names.emplace_back("No Key Frames established.");
    }
    require(window().list().rows() == names, "the window shows the list");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t mostBytes = 128;
    User user;
    for (std::size_t at = 0; at + 1 < std::min(size, mostBytes); at += 2) {
        user.act(data[at], data[at + 1]);
        user.check();
    }
    user.leave();
    return 0;
}
