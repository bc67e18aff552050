#include "host/scene/data/VariableRef.h"

#include <array>
#include <string_view>

namespace corvane::scene {

namespace {

constexpr std::array<std::string_view, 3> suffixes{":X", ":Y", ":Z"};

} // namespace

VariableRef variableRef(const std::string& name) {
    for (int component = 0; component < 3; ++component) {
        const std::string_view suffix = suffixes[static_cast<std::size_t>(component)];
        if (name.ends_with(suffix)) {
            return {name.substr(0, name.size() - suffix.size()), component};
        }
    }
    return {name, -1};
}

std::string displayName(const VariableRef& variable, const host::DataSet& data) {
    const host::Variable* const found = data.findVariable(variable.array);
    if (found == nullptr || found->components == 1) {
        return variable.array;
    }
    if (variable.component < 0) {
        return "|" + variable.array + "|";
    }
    return variable.array + " " + "XYZ"[variable.component];
}

} // namespace corvane::scene
