// Opens a key frame file at the word of the user or a macro.
#pragma once

#include "addon/model/Records.h"

#include <string>

namespace corvane::corutiltools {

class ListModelKeyFrame;

// Reads a key frame file into the list and the settings and tells the main dialog. Throws
// KeyFrameError when it cannot be read; nothing is changed then.
void OpenSettingsFile(const std::string& fileName, ListModelKeyFrame& model, Settings_s& settings);

} // namespace corvane::corutiltools
