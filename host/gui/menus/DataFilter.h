// The kinds of files that the dialog for opening data offers.
#pragma once

#include "host/core/ports/DataFormat.h"

#include <QString>

#include <vector>

namespace corvane::gui {

/// As QFileDialog takes it: all formats together first, then each of them, and any file at last.
QString dataFilter(const std::vector<host::DataFormat>& formats);

} // namespace corvane::gui
