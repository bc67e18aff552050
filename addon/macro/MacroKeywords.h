// The words of the add-on's macro commands.
#pragma once

#include "addon/base/EnumMap.h"
#include "addon/model/Records.h"

#include <cstdint>

namespace corvane::corutiltools {

// What a macro can ask of the add-on.
enum Command_e : std::int32_t { Command_OpenSettingsFile = 0, Command_Animate = 1 };

// What a command is told.
enum Parameter_e : std::int32_t {
    Parameter_FileName = 0,            // a path, taken as it stands
    Parameter_AnimationDestination = 1 // a keyword of Destination_e
};

// Movie formats by name. No command reads them.
enum AnimationDest_e : std::int32_t {
    AnimationDest_Screen = 0,
    AnimationDest_AVI = 1,
    AnimationDest_RM = 2,
    AnimationDest_FlashSWF = 3,
    AnimationDest_FlashFLV = 4,
    AnimationDest_MPEG4 = 5,
    AnimationDest_WMV = 6
};

template <>
void EnumMap<Command_e>::initializeMaps();
template <>
void EnumMap<Parameter_e>::initializeMaps();
template <>
void EnumMap<Destination_e>::initializeMaps();
template <>
void EnumMap<AnimationDest_e>::initializeMaps();

} // namespace corvane::corutiltools
