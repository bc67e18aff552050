// Any bytes as the text of a page: they are refused with line and cause, or what was read survives
// being written and read again.
#include "host/core/base/HostError.h"
#include "host/core/page/PageStateText.h"
#include "host/memory/MemoryData.h"
#include "tests/fuzz/Require.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace corvane::host;
using corvane::fuzz::require;

// The same files are the same data.
std::shared_ptr<const DataSet> dataOf(const std::vector<std::string>& files) {
    static std::vector<std::shared_ptr<const DataSet>> all;
    for (const auto& data : all) {
        if (data->files == files) {
            return data;
        }
    }
    constexpr std::size_t mostKept = 100;
    if (all.size() == mostKept) {
        throw HostError("There are no such data.");
    }
    all.push_back(corvane::memory::makeTransientData(files));
    return all.back();
}

std::optional<PageState> read(const std::string& text) {
    try {
        return pageStateFromText(text, dataOf);
    } catch (const HostError& error) {
        require(*error.what() != '\0', "a refusal has a cause");
    }
    return std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::optional<PageState> first =
        read(std::string(reinterpret_cast<const char*>(data), size));
    if (!first) {
        return 0;
    }
    const std::string text = toText(*first);
    const std::optional<PageState> second = read(text);
    require(second.has_value(), "what was read can be written");
    require(*second == *first, "what was read survives being written");
    require(toText(*second) == text, "what is written again is the same");
    return 0;
}
