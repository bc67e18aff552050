// The words of the add-on's macro commands.
#include "addon/macro/MacroKeywords.h"

namespace corvane::corutiltools {

template <>
void EnumMap<Command_e>::initializeMaps() {
    m_keywords[Command_OpenSettingsFile] = "OpenSettingsFile";
    m_keywords[Command_Animate] = "Animate";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<Parameter_e>::initializeMaps() {
    m_keywords[Parameter_FileName] = "FileName";
    m_keywords[Parameter_AnimationDestination] = "AnimationDestination";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<Destination_e>::initializeMaps() {
    m_keywords[Destination_OnScreen] = "OnScreen";
    m_keywords[Destination_ToFile] = "ToFile";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<AnimationDest_e>::initializeMaps() {
    m_keywords[AnimationDest_Screen] = "Screen";
    m_keywords[AnimationDest_AVI] = "AVI";
    m_keywords[AnimationDest_FlashFLV] = "Flash (FLV)";
    m_keywords[AnimationDest_FlashSWF] = "Flash (SWF)";
    m_keywords[AnimationDest_MPEG4] = "MPEG-4";
    m_keywords[AnimationDest_RM] = "RM";
    m_keywords[AnimationDest_WMV] = "WMV";
    ReverseMap(m_keywords, m_values);
}

} // namespace corvane::corutiltools
