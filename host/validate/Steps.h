// What a user can do with an add-on.
#pragma once

#include "host/memory/MemoryHost.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::validate {

/// One thing that a user can do. It must not be used after the host has gone.
struct Step {
    /// When it is to be done: what shuts a dialog comes when there is nothing else to do in it, and
    /// what needs no dialog at the end.
    enum class Turn { Use, Leave, Last };

    std::string what; ///< which control, and what is done with it; never the same for two steps
    Turn turn = Turn::Use;
    std::function<bool()> isPossible;
    std::function<void()> perform;
    bool selects = false; ///< rows of a list, which may make other steps possible
};

/// How the items of option menus and radio boxes are gone through. What is chosen last counts for
/// what follows.
enum class ItemOrder { FirstToLast, LastToFirst };

/// With the dialogs and menu options that the add-on has made by now, in the order of their making.
std::vector<Step> stepsOfUser(memory::MemoryHost& host, ItemOrder order);

/// Macros with commands of the add-on: those that were recorded by now, and some that make no
/// sense. Each macro is one line.
std::vector<Step> stepsOfMacros(memory::MemoryHost& host, const std::vector<std::string>& recorded);

/// What happens to the page while an add-on listens.
std::vector<Step> stepsOfPage(memory::MemoryHost& host);

} // namespace corvane::validate
