// The main dialog: capturing and changing key frames.
#include "addon/ui/DialogMain.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/ui/ContinuousRun.h"
#include "addon/ui/DialogLayout.h"
#include "addon/ui/controls/Message.h"
#include "hostapi/CorHost.h"

#include <algorithm>

namespace corvane::corutiltools {

namespace {

constexpr unsigned long defaultFrameCount = 30;

// There may be no 3D view to capture: the frame can have changed since the last idle time.
template <typename Capture>
void showingErrors(const Capture& capture) {
    try {
        const HostLock lock;
        capture();
    } catch (const KeyFrameError& error) {
        showErrorMessage(error.what());
    }
}

} // namespace

int DialogMain::selectedItem() {
    return m_listView.selectionModel().getSelectedItem();
}

void DialogMain::insertKeyFrameIntoModel(const View& view, ListModelKeyFrame& model,
                                         unsigned long position) {
    const unsigned long count = model.size();
    const KeyFrame_s keyFrame{.view = view,
                              .name = "View " + std::to_string(model.end()),
                              .frameCount =
                                  count == 0 ? defaultFrameCount : model.frameCount(count - 1),
                              .solutionTime = CorUtilSolutionTimeGetCurrent()};
    model.insertItem(position, keyFrame);
    registerOnIdleUpdate();
}

void DialogMain::captureKeyFrame(unsigned long position) {
    showingErrors([&] { insertKeyFrameIntoModel(GetCurrentView(), m_model, position); });
}

void DialogMain::appendKeyFrame_BTN_CB() {
    DialogMain& dialog = instance();
    dialog.captureKeyFrame(dialog.m_model.end());
}

void DialogMain::insertKeyFrame_BTN_CB() {
    DialogMain& dialog = instance();
    const std::vector<unsigned long> selection = dialog.selectedItems();
    dialog.captureKeyFrame(selection.empty() ? dialog.m_model.end() : selection.front());
}

void DialogMain::update_BTN_CB() {
    DialogMain& dialog = instance();
    const int selected = dialog.selectedItem();
    if (selected < 0) {
        return;
    }
    showingErrors(
        [&] { dialog.m_model.update(static_cast<unsigned long>(selected), GetCurrentView()); });
}

void DialogMain::apply_BTN_CB() {
    DialogMain& dialog = instance();
    const int selected = dialog.selectedItem();
    if (selected < 0) {
        return;
    }
    const KeyFrame_s& keyFrame = dialog.m_model.data(static_cast<unsigned long>(selected));
    // One lock for both, so that the host does not draw the view at the wrong time first.
    const HostLock lock;
    keyFrame.view.apply();
    CorUtilSolutionTimeSetCurrent(keyFrame.solutionTime);
}

void DialogMain::delete_BTN_CB() {
    DialogMain& dialog = instance();
    const std::vector<unsigned long> selection = dialog.selectedItems();
    if (selection.empty()) {
        return;
    }
    dialog.deleteItems(selection);
    dialog.registerOnIdleUpdate();
}

void DialogMain::deleteItems(std::vector<unsigned long> selection) {
    if (isContinuousRun(selection)) {
        m_model.removeItems(selection.front(), selection.size());
        return;
    }
    std::sort(selection.rbegin(), selection.rend());
    for (const unsigned long index : selection) {
        m_model.removeItem(index);
    }
}

void DialogMain::clear_BTN_CB() {
    DialogMain& dialog = instance();
    dialog.m_model.removeItems(0, dialog.m_model.size());
    dialog.registerOnIdleUpdate();
}

long DialogMain::viewName_TF_CB(const char* text) {
    DialogMain& dialog = instance();
    const int selected = dialog.selectedItem();
    if (selected < 0) {
        return 1;
    }
    const auto index = static_cast<unsigned long>(selected);
    const std::string name = text;
    if (!name.empty()) {
        dialog.m_model.setName(index, name);
        return 1;
    }
    const HostLock lock;
    showErrorMessage("The view name must be at least one character.");
    CorGUITextFieldSetString(ViewName_TF_D1, dialog.m_model.name(index).c_str());
    return 1;
}

long DialogMain::frameCount_TF_CB(const char* text) {
    DialogMain& dialog = instance();
    if (!dialog.m_frameCount.validate(text)) {
        return 0;
    }
    const auto frameCount = static_cast<unsigned long>(dialog.m_frameCount.value());
    for (const unsigned long index : dialog.selectedItems()) {
        dialog.m_model.setFrameCount(index, frameCount);
    }
    return 1;
}

void DialogMain::keyFrameList_MLST_CB(const long*) {
    instance().m_listView.selectionModel().selectionChanged();
}

} // namespace corvane::corutiltools
