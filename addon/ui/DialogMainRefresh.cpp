// The main dialog: what it shows.
#include "addon/ui/DialogMain.h"

#include "addon/base/HostLock.h"
#include "addon/model/Utilities.h"
#include "addon/ui/DialogLayout.h"
#include "hostapi/CorHost.h"

#include <boost/bind/bind.hpp>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace corvane::corutiltools {

namespace {

void setSensitivity(std::initializer_list<int> controls, bool isSensitive) {
    for (const int control : controls) {
        CorGUISetSensitivity(control, isSensitive);
    }
}

int asFrameCount(unsigned long count) {
    return static_cast<int>(std::min<unsigned long>(count, std::numeric_limits<int>::max()));
}

} // namespace

bool DialogMain::alreadyUpdatingMenuToggles = false;

void DialogMain::registerOnIdleUpdate() {
    if (isVisible()) {
        m_onIdle.addCallback(boost::bind(&DialogMain::update, this));
    }
}

void DialogMain::selectionChanged(const std::vector<unsigned long>&) {
    registerOnIdleUpdate();
}

std::vector<unsigned long> DialogMain::selectedItems() {
    std::vector<unsigned long> items;
    m_listView.selectionModel().getSelectedItems(items);
    return items;
}

void DialogMain::update() {
    const HostLock lock;
    const std::vector<unsigned long> selection = selectedItems();
    updateSelectedKeyFrameInfo(selection);
    updateSensitivities(selection.size());
    m_destination.setValue(m_settings.destination);
}

void DialogMain::updateSelectedKeyFrameInfo(const std::vector<unsigned long>& selection) {
    if (selection.empty()) {
        return;
    }
    CorGUITextFieldSetString(ViewName_TF_D1, m_model.name(selection.front()).c_str());
    std::vector<unsigned long> counts;
    ExtractFrameCountsForIndices(m_model.dataList(), selection, counts);
    const bool areEqual = std::all_of(counts.begin(), counts.end(),
                                      [&](unsigned long count) { return count == counts.front(); });
    if (areEqual) {
        m_frameCount.setValue(asFrameCount(counts.front()));
    } else {
        CorGUITextFieldSetString(FrameCount_TF_D1, "");
    }
}

void DialogMain::updateSensitivities(unsigned long numSelected) {
    const unsigned long numKeyFrames = m_model.size();
    const bool hasSelection = numKeyFrames != 0 && numSelected != 0;
    setSensitivity({Apply_BTN_D1, Update_BTN_D1, ViewName_TF_D1, ViewName_LBL_D1},
                   hasSelection && numSelected == 1);
    setSensitivity({Delete_BTN_D1, InsertKeyFrame_BTN_D1, FrameCount_TF_D1, FrameCount_LBL_D1},
                   hasSelection);
    setSensitivity({AnimateSelected_BTN_D1}, hasSelection && numSelected >= 2);
    setSensitivity({Clear_BTN_D1}, numKeyFrames != 0);
    setSensitivity({AnimateAll_BTN_D1}, numKeyFrames > 1);
}

void DialogMain::updateMenuToggles() {
    struct Running {
        Running() { alreadyUpdatingMenuToggles = true; }
        ~Running() { alreadyUpdatingMenuToggles = false; }
    };
    if (alreadyUpdatingMenuToggles || !isVisible()) {
        return;
    }
    const Running running;
    const HostLock lock;
    buildMenuBar();
    CorGUIMenuSetToggle(m_animateStreamsMenuID, m_settings.animateStreamtraces);
    CorGUIMenuSetToggle(m_animateTimeMenuID, m_settings.timeOptions.animateTime);
    CorGUIMenuSetToggle(m_fadeInMenuID, m_settings.fadeIn);
    CorGUIMenuSetToggle(m_fadeOutMenuID, m_settings.fadeOut);
}

} // namespace corvane::corutiltools
