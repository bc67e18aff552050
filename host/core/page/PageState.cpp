#include "host/core/page/PageState.h"

#include <algorithm>

namespace corvane::host {

const FrameState* findFrame(const PageState& page, long id) {
    const auto found = std::find_if(page.frames.begin(), page.frames.end(),
                                    [id](const FrameState& frame) { return frame.id == id; });
    return found == page.frames.end() ? nullptr : &*found;
}

} // namespace corvane::host
