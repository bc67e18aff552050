// The words of the key frame file.
#include "addon/file/KeyFrameFile.h"

namespace corvane::corutiltools {

template <>
void EnumMap<KeyFrameFile::Section_e>::initializeMaps() {
    m_keywords[KeyFrameFile::Section_Settings] = "%Settings";
    m_keywords[KeyFrameFile::Section_KeyFrameView] = "%KeyFrameView";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<KeyFrameFile::Setting_e>::initializeMaps() {
    m_keywords[KeyFrameFile::Setting_AnimateTime] = "AnimateTime";
    m_keywords[KeyFrameFile::Setting_TimeAnimationOperation] = "TimeAnimationOperation";
    m_keywords[KeyFrameFile::Setting_NumCycles] = "NumCycles";
    m_keywords[KeyFrameFile::Setting_AnimateStreamtraces] = "AnimateStreamtraces";
    m_keywords[KeyFrameFile::Setting_FadeIn] = "FadeIn";
    m_keywords[KeyFrameFile::Setting_FadeOut] = "FadeOut";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<KeyFrameFile::KeyFrameItem_e>::initializeMaps() {
    m_keywords[KeyFrameFile::KeyFrameItem_Name] = "Name";
    m_keywords[KeyFrameFile::KeyFrameItem_Position] = "Position";
    m_keywords[KeyFrameFile::KeyFrameItem_Angle] = "Angle";
    m_keywords[KeyFrameFile::KeyFrameItem_Width] = "Width";
    m_keywords[KeyFrameFile::KeyFrameItem_FrameCount] = "FrameCount";
    m_keywords[KeyFrameFile::KeyFrameItem_SolutionTime] = "SolutionTime";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<TimeAnimationOperation_e>::initializeMaps() {
    m_keywords[TimeAnimationOperation_Forward] = "Forward";
    m_keywords[TimeAnimationOperation_Loop] = "Loop";
    m_keywords[TimeAnimationOperation_Bounce] = "Bounce";
    m_keywords[TimeAnimationOperation_AsCaptured] = "AsCaptured";
    ReverseMap(m_keywords, m_values);
}

} // namespace corvane::corutiltools
