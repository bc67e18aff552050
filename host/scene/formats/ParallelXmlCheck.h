// Whether VTK can read a parallel XML file.
#pragma once

#include <string>

namespace corvane::scene {

/// Throws ReadFailure when the file is a parallel one whose points have not three coordinates:
/// VTK's reader falls over it. Others are left to that reader.
void checkParallelXml(const std::string& path);

} // namespace corvane::scene
