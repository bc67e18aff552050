// The reference page of the macro language, made from the tables that the program works with.
#include "host/core/commands/MacroReference.h"

#include "host/core/base/Text.h"
#include "host/core/commands/MacroCommands.h"
#include "host/core/page/StyleBindings.h"
#include "host/core/picture/ExportSetup.h"

#include <cstdio>
#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace corvane::host {

namespace {

constexpr const char* introduction = R"(# The macro language

A macro is a text file that Corvane plays from top to bottom: `corvane --macro scene.mcr`. Commands begin with `$!`, lines that
begin with `#` are comments, empty lines are skipped. Words are separated by blanks; `=` is a word of its own; a word with
blanks stands in double quotes, where `\"`, `\\` and `\n` stand for a quote, a backslash and a line break. Names of commands
and paths may be written in capitals or not. Numbers have a decimal point in every country. File names are relative to the
folder of the macro, except those of movies and of key frame files, which are relative to the folder in which Corvane was
started.

The first line that fails stops the macro; the message names file and line and tells the cause. Pictures and movies appear
under their names when they are complete, and never go over data, macros and add-ons that the run reads.

**Macro > Record Macro** in the window, and `--record FILE` with or without one, write down what is done. The recording begins
with what is there: the size of the pictures, frames, data, styles, views. Played without a window it makes the same pictures
and movies again. Key frames are not part of it, only the file that they were opened from: save a flight that was captured by
hand, and open the file again before **Animate All**.

)";

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string range(const StyleLeaf& leaf) {
    const bool hasMinimum = leaf.minimum > std::numeric_limits<double>::lowest();
    const bool hasMaximum = leaf.maximum < std::numeric_limits<double>::max();
    if (hasMinimum && leaf.minimum == std::numeric_limits<double>::min()) {
        return " above 0";
    }
    if (hasMinimum && hasMaximum) {
        return " from " + number(leaf.minimum) + " to " + number(leaf.maximum);
    }
    return hasMinimum ? " from " + number(leaf.minimum) + " on" : std::string();
}

std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

struct KindOf {
    const StyleLeaf& leaf;

    std::string operator()(const bool*) const { return "`true` or `false`"; }
    std::string operator()(const int*) const { return "whole number" + range(leaf); }
    std::string operator()(const double*) const { return "number" + range(leaf); }
    std::string operator()(const std::string*) const {
        if (!leaf.choices.empty()) {
            return "one of " + listed(leaf.choices);
        }
        return leaf.accepts ? "name of a variable of the data" : "text";
    }
};

std::string commandText(const MacroCommand& command) {
    std::string text = "## " + command.name + "\n\n";
    for (const std::string& form : command.arguments) {
        text += "    $!" + command.name + (form.empty() ? "" : " " + form) + "\n";
    }
    return text + "\n" + command.purpose + " Example: `" + command.example + "`\n\n";
}

std::string kindOf(const StyleLeaf& leaf) {
    return std::visit(KindOf{leaf}, leaf.target);
}

std::string row(const std::string& name, const std::string& kind) {
    return "| `" + name + "` | " + kind + " |\n";
}

/// Numbered values differ in nothing but the number, so the first stands for all.
std::vector<StyleLeaf> withFirstNumberOnly(const std::vector<StyleLeaf>& leaves) {
    std::vector<StyleLeaf> kept;
    for (StyleLeaf leaf : leaves) {
        const std::string number = leaf.path.size() > 1 ? leaf.path[1] : "";
        const bool isNumbered = !number.empty() && isDigit(number.front());
        if (isNumbered && number != "1") {
            continue;
        }
        if (isNumbered) {
            leaf.path[1] = "N";
        }
        kept.push_back(std::move(leaf));
    }
    return kept;
}

std::string styleTable() {
    View3D view;
    FrameStyle style;
    style.surfaces.resize(1);
    StyleTree tree;
    const auto any = [](const std::string&) { return true; };
    bindViewStyles(tree, view);
    bindPlotStyles(tree, style, {any, any, {}});
    bindSurfaceStyles(tree, style.surfaces);
    std::string text = "| Path | Value |\n|---|---|\n";
    for (const StyleLeaf& leaf : withFirstNumberOnly(tree.leaves())) {
        text += row(toString(leaf.path), kindOf(leaf));
    }
    return text;
}

std::string exportTable() {
    ExportSetup setup;
    StyleTree tree;
    bindExportSetup(tree, setup, {});
    std::string text = "| Name | Value |\n|---|---|\n";
    for (const StyleLeaf& leaf : tree.leaves()) {
        const std::string& name = leaf.path.back();
        const std::vector<std::string> keywords = exportSettingKeywords(name);
        text += row(name, keywords.empty() ? kindOf(leaf) : "one of " + listed(keywords));
    }
    return text;
}

} // namespace

std::string macroReference() {
    std::string text = introduction;
    for (const MacroCommand& command : macroCommands()) {
        text += commandText(command);
    }
    text += "# Values of STYLE\n\nN counts from 1: blocks of the data for `Surface`, up to " +
            std::to_string(FrameStyle::sliceCount) + " slices, up to " +
            std::to_string(FrameStyle::isoSurfaceCount) +
            " isosurfaces. Components of a vector are named `U:X`, `U:Y`, `U:Z`.\n\n";
    text += styleTable();
    return text + "\n# Values of EXPORTSETUP\n\n" + exportTable();
}

} // namespace corvane::host
