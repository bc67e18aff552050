#include "host/validate/ControlSteps.h"

#include "host/core/controls/ControlActions.h"
#include "host/core/session/Session.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace corvane::validate {

namespace {

using Turn = Step::Turn;

/// More rows and items than these behave as these do.
constexpr long mostItems = 12;

/// What users type, sense and nonsense; the last one makes sense nearly everywhere, and what
/// follows works with it.
const std::array<std::string, 9>& typedTexts() {
    static const std::array<std::string, 9> texts{"",
                                                  "-3",
                                                  "2.5",
                                                  "1e30",
                                                  "nan",
                                                  "a \"b\" <c> & %s",
                                                  "\xc3\xbc\xe2\x82\xac",
                                                  std::string(300, 'x'),
                                                  "7"};
    return texts;
}

std::string shortened(const std::string& text) {
    constexpr std::size_t longest = 20;
    return '"' + (text.size() > longest ? text.substr(0, longest) + "..." : text) + '"';
}

/// Puts together the steps with one control.
class ControlSteps {
public:
    ControlSteps(const host::Control& control, host::Session& session, ItemOrder order)
        : m_control(control), m_actions(session.controlActions()), m_order(order) {}

    std::vector<Step> steps() {
        addFor(dynamic_cast<const host::Button*>(&m_control));
        addFor(dynamic_cast<const host::MenuItem*>(&m_control));
        addFor(dynamic_cast<const host::Toggle*>(&m_control));
        addFor(dynamic_cast<const host::MenuToggle*>(&m_control));
        addFor(dynamic_cast<const host::TextField*>(&m_control));
        addFor(dynamic_cast<const host::SpinField*>(&m_control));
        addFor(dynamic_cast<const host::List*>(&m_control));
        addChoices(dynamic_cast<const host::OptionMenu*>(&m_control));
        addChoices(dynamic_cast<const host::RadioBox*>(&m_control));
        addFor(dynamic_cast<const host::Dialog*>(&m_control));
        return std::move(m_steps);
    }

private:
    void add(const std::string& verb, std::function<void()> perform, Turn turn = Turn::Use) {
        m_steps.push_back(
            {verb + ' ' + host::nameInTrace(m_control), turn,
             [this_ = &m_control, &actions = m_actions] { return actions.isReachable(*this_); },
             std::move(perform)});
    }

    void addFor(const host::Button* button) {
        if (button != nullptr) {
            add("pressing", [&actions = m_actions, button] { actions.press(button->handle); });
        }
    }
    void addFor(const host::MenuItem* item) {
        if (item != nullptr) {
            add("choosing", [&actions = m_actions, item] { actions.trigger(item->handle); });
        }
    }
    template <class T>
    void addSwitch(const T* toggle) {
        if (toggle != nullptr) {
            add("switching", [&actions = m_actions, toggle] {
                actions.switchTo(toggle->handle, !toggle->isOn);
            });
        }
    }
    void addFor(const host::Toggle* toggle) { addSwitch(toggle); }
    void addFor(const host::MenuToggle* toggle) { addSwitch(toggle); }
    void addFor(const host::TextField* field);
    void addFor(const host::SpinField* field);
    void addFor(const host::List* list);
    void addFor(const host::Dialog* dialog);
    template <class T>
    void addChoices(const T* control);

    const host::Control& m_control;
    host::ControlActions& m_actions;
    ItemOrder m_order;
    std::vector<Step> m_steps;
};

void ControlSteps::addFor(const host::TextField* field) {
    if (field == nullptr) {
        return;
    }
    for (const std::string& text : typedTexts()) {
        add("typing " + shortened(text) + " into", [&actions = m_actions, field, &text] {
            actions.edit(field->handle, text);
            actions.commit(field->handle);
        });
    }
}

void ControlSteps::addFor(const host::SpinField* field) {
    if (field != nullptr) {
        add("stepping up", [&actions = m_actions, field] { actions.step(field->handle, true); });
        add("stepping down", [&actions = m_actions, field] { actions.step(field->handle, false); });
    }
}

void ControlSteps::addFor(const host::List* list) {
    if (list == nullptr) {
        return;
    }
    const auto select = [&](const std::string& rows, std::function<std::vector<long>(long)> which) {
        add("selecting " + rows + " of", [&actions = m_actions, list, which = std::move(which)] {
            actions.select(list->handle, which(static_cast<long>(list->rows.size())));
        });
        m_steps.back().selects = true;
    };
    select("no row", [](long) { return std::vector<long>{}; });
    select("the last row", [](long count) { return std::vector<long>{count}; });
    select("all rows", [](long count) {
        std::vector<long> all(static_cast<std::size_t>(count));
        std::iota(all.begin(), all.end(), 1L);
        return all;
    });
    select("the first row", [](long) { return std::vector<long>{1}; });
}

template <class T>
void ControlSteps::addChoices(const T* control) {
    if (control == nullptr) {
        return;
    }
    const long count = std::min(mostItems, static_cast<long>(control->items.size()));
    for (long i = 1; i <= count; ++i) {
        const long position = m_order == ItemOrder::FirstToLast ? i : count + 1 - i;
        add("choosing item " + std::to_string(position) + " of",
            [&actions = m_actions, control, position] {
                actions.choose(control->handle, position);
            });
    }
}

void ControlSteps::addFor(const host::Dialog* dialog) {
    if (dialog == nullptr) {
        return;
    }
    if (dialog->onHelp) {
        add("pressing Help of", [&actions = m_actions, dialog] { actions.help(dialog->handle); });
    }
    if (dialog->onApply) {
        add("pressing Apply of", [&actions = m_actions, dialog] { actions.apply(dialog->handle); });
    }
    if (dialog->isModal) {
        add(
            "pressing OK of", [&actions = m_actions, dialog] { actions.ok(dialog->handle); },
            Turn::Leave);
    }
    add(
        dialog->isModal ? "cancelling" : "closing",
        [&actions = m_actions, dialog] { actions.dismiss(dialog->handle); }, Turn::Leave);
}

} // namespace

std::vector<Step> stepsWith(const host::Control& control, host::Session& session, ItemOrder order) {
    return ControlSteps(control, session, order).steps();
}

} // namespace corvane::validate
