// A small data set without a file.
#pragma once

#include "host/core/page/DataSet.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::memory {

/// Zones 1 to 3: the volume block "flow" at the times 0, 1 and 2, strand 1. Zone 4: the static
/// surface block "body". Variables "pressure" (0 to 1) and "velocity" (a vector of length 0 to 2).
/// The box reaches from 0 0 0 to 1 2 3, so that no two directions can be mixed up unseen.
std::shared_ptr<host::DataSet> makeTransientData(std::vector<std::string> files = {"flow.pvd"});

/// The block "body" alone.
std::shared_ptr<host::DataSet> makeStaticData(std::vector<std::string> files = {"body.vtp"});

/// The volume block "internal" without a time. Variables "p" (-2 to 4) and "U" (a vector of length
/// 0 to 8). The box reaches from 0 0 0 to 4 2 1: x is its longest side and z its shortest.
std::shared_ptr<host::DataSet> makeVolumeData();

} // namespace corvane::memory
