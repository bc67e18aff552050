// The state of a page as text: readable, and exact to the bit.
#pragma once

#include "host/core/page/PageState.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {

/// The first line, with the version of the form.
inline constexpr const char* pageStateHeader = "corvane-page 1";

/// Lines of words, quoted as in macros, with values by the paths of style values. Data are named by
/// their files. It reads back as an equal state wherever the same files give the same data.
std::string toText(const PageState& page);

/// Gives the data of files, as they stand in the text; never null. Throws HostError.
using DataSource =
    std::function<std::shared_ptr<const DataSet>(const std::vector<std::string>& files)>;

/// Values that the text does not tell are those of a new frame. Throws HostError with the number of
/// the line and the cause, for a text that is cut off too.
PageState pageStateFromText(const std::string& text, const DataSource& dataOf);

} // namespace corvane::host
