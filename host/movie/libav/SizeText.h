// Picture sizes in messages.
#pragma once

#include <string>

namespace corvane::movie {

/// "640 x 480"
inline std::string sizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace corvane::movie
