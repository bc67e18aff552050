#include "host/core/page/PageStateText.h"

#include "host/core/base/QuotedWords.h"
#include "host/core/base/Text.h"
#include "host/core/page/Frame.h"

#include <locale>
#include <sstream>
#include <variant>

namespace corvane::host {

namespace {

struct ValueText {
    std::string operator()(const bool* value) const { return *value ? "true" : "false"; }
    std::string operator()(const int* value) const { return std::to_string(*value); }
    std::string operator()(const double* value) const { return exactText(*value); }
    std::string operator()(const std::string* value) const { return quoted(*value); }
};

void writeFrame(std::ostream& out, const FrameState& state) {
    const Placement& place = state.placement;
    out << "frame " << state.id << '\n'
        << "placement " << exactText(place.x) << ' ' << exactText(place.y) << ' '
        << exactText(place.width) << ' ' << exactText(place.height) << '\n'
        << "plottype " << static_cast<int>(state.plotType) << '\n'
        << "time " << exactText(state.solutionTime) << '\n';
    if (state.data) {
        out << "data";
        for (const std::string& file : state.data->files) {
            out << ' ' << quoted(file);
        }
        out << '\n';
    }
    const Frame frame(state);
    for (const StyleLeaf& leaf : frame.styles().leaves()) {
        out << "set " << toString(leaf.path) << ' ' << std::visit(ValueText{}, leaf.target) << '\n';
    }
}

} // namespace

std::string toText(const PageState& page) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << pageStateHeader << '\n'
        << "workarea " << page.workArea.width << ' ' << page.workArea.height << ' '
        << exactText(page.workArea.pixelsPerInch) << '\n';
    for (const FrameState& frame : page.frames) {
        writeFrame(out, frame);
    }
    out << "end " << page.active << '\n';
    return out.str();
}

} // namespace corvane::host
