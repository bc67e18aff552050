// The rules by which the state of the host changes.
#include "host/core/session/Session.h"

#include "host/core/base/HostError.h"
#include "host/core/base/SecondTry.h"
#include "host/core/base/Text.h"
#include "host/core/files/PartFile.h"
#include "host/core/picture/PictureRequests.h"
#include "host/core/session/PageChanges.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

namespace corvane::host {

namespace {

std::string_view firstOf(const StylePath& path) {
    return path.empty() ? std::string_view() : path.front();
}

/// A page that is not shown yet has no work area; a frame needs an extent all the same.
Placement firstPlacement(const Page& page) {
    const Placement area = page.regionOf(ExportRegion_WorkArea);
    return area.width > 0.0 && area.height > 0.0 ? area : Placement{};
}

} // namespace

Session::Session(Ports ports)
    : m_ports(ports),
      m_drawing(m_page, m_locks, ports.renderer, ports.screen, ports.idleTimer),
      m_idle(ports.idleTimer, addOnCaller()),
      m_stateChanges(addOnCaller()),
      m_status(ports.status, [this] { return m_exporter.isRecording() && m_exporter.hasFailed(); }),
      m_exporter(m_page, m_exportSetup, m_drawing, ports.renderer, ports.movies, ports.tell),
      m_controls(ports.widgets, addOnCaller()),
      m_controlActions(m_controls),
      m_menuOptions(ports.mainMenu, addOnCaller()),
      m_callGuard(m_locks, m_drawing, m_controls, m_trace) {
    bindOwnStyles();
    if (ports.widgets != nullptr) {
        ports.widgets->attach(m_controlActions);
    }
}

Session::~Session() = default;

void Session::bindOwnStyles() {
    StyleLeaf displayLists;
    displayLists.path = {"Interface", "UseDisplayLists"};
    displayLists.target = &m_useDisplayLists;
    displayLists.effect = StyleEffect::None;
    m_styles.bind(std::move(displayLists));
    bindExportSetup(m_styles, m_exportSetup, [this] { return !m_exporter.isRecording(); });
}

const StyleTree* Session::stylesFor(std::string_view firstKeyword) const {
    if (equalIgnoringCase(firstKeyword, "ExportSetup") ||
        equalIgnoringCase(firstKeyword, "Interface")) {
        return &m_styles;
    }
    const Frame* frame = m_page.currentSpatial();
    return frame != nullptr ? &frame->styles() : nullptr;
}

const StyleLeaf* Session::findStyle(const StylePath& path) const {
    const StyleTree* tree = stylesFor(firstOf(path));
    return tree != nullptr ? tree->find(path) : nullptr;
}

StyleSetResult_e Session::setStyle(const StylePath& path, const StyleInput& value) {
    const StyleTree* tree = stylesFor(firstOf(path));
    if (tree == nullptr) {
        return StyleSet_NotAllowed;
    }
    const StyleLeaf* leaf = tree->find(path);
    return leaf == nullptr ? StyleSet_BadPath : setStyle(*leaf, value);
}

StyleSetResult_e Session::setStyle(const StyleLeaf& leaf, const StyleInput& value) {
    const StyleSetResult_e result = StyleTree::set(leaf, value);
    if (result == StyleSet_Ok) {
        announce(leaf.effect);
    }
    return result;
}

StyleGetResult_e Session::getStyle(const StylePath& path, StyleInput& value) const {
    const StyleTree* tree = stylesFor(firstOf(path));
    if (tree == nullptr) {
        return StyleGet_NotAvailable;
    }
    std::optional<StyleInput> found = tree->get(path);
    if (!found) {
        return StyleGet_BadPath;
    }
    value = std::move(*found);
    return StyleGet_Ok;
}

void Session::announce(StyleEffect effect) {
    switch (effect) {
    case StyleEffect::View:
        pageChanged(StateChange_ViewChanged);
        break;
    case StyleEffect::Picture:
        pageChanged(StateChange_StyleChanged);
        break;
    case StyleEffect::None:
        m_stateChanges.notify(StateChange_StyleChanged);
        break;
    }
}

void Session::openData(const std::vector<std::string>& files) {
    std::shared_ptr<const DataSet> data = m_ports.reader.read(files);
    if (m_page.active() == nullptr) {
        m_page.createFrame(firstPlacement(m_page));
        pageChanged(StateChange_FrameCreated);
    }
    Frame& frame = *m_page.active();
    frame.attachData(std::move(data));
    chooseDefaultPlots(frame);
    pageChanged(StateChange_DataSetAttached);
}

bool Session::setSolutionTime(double time) {
    Frame* frame = m_page.current();
    if (frame == nullptr || !frame->data() || !std::isfinite(time)) {
        return false;
    }
    if (frame->solutionTime != time) {
        frame->solutionTime = time;
        pageChanged(StateChange_SolutionTimeChanged);
    }
    return true;
}

bool Session::rotateView(RotateAxis_e axis, double degrees) {
    Frame* frame = m_page.currentSpatial();
    const bool isKnown =
        axis == RotateAxis_Psi || axis == RotateAxis_Theta || axis == RotateAxis_Alpha;
    if (frame == nullptr || !isKnown || !std::isfinite(degrees)) {
        return false;
    }
    const View3D before = frame->view;
    rotate(frame->view, axis, degrees);
    announceIfMoved(*frame, before);
    return true;
}

bool Session::setView(const View3D& view) {
    Frame* frame = m_page.currentSpatial();
    if (frame == nullptr) {
        return false;
    }
    const View3D before = std::exchange(frame->view, view);
    announceIfMoved(*frame, before);
    return true;
}

bool Session::fitView() {
    Frame* frame = m_page.currentSpatial();
    if (frame == nullptr || !frame->data() || frame->data()->bounds.isEmpty()) {
        return false;
    }
    const View3D before = frame->view;
    fit(frame->view, frame->data()->bounds, frame->placement.aspect());
    announceIfMoved(*frame, before);
    return true;
}

void Session::announceIfMoved(const Frame& frame, const View3D& before) {
    if (frame.view != before) {
        pageChanged(StateChange_ViewChanged);
    }
}

bool Session::setPlotType(PlotType_e type) {
    Frame* frame = m_page.current();
    if (frame == nullptr) {
        return false;
    }
    if (frame->plotType != type) {
        frame->plotType = type;
        pageChanged(StateChange_PlotTypeChanged);
    }
    return true;
}

Frame& Session::createFrame(const Placement& placement) {
    Frame& created = m_page.createFrame(placement);
    pageChanged(StateChange_FrameCreated);
    pageChanged(StateChange_FrameActivated);
    return created;
}

bool Session::placeFrame(long id, const Placement& placement) {
    Frame* const frame = m_page.find(id);
    if (frame == nullptr) {
        return false;
    }
    frame->placement = placement;
    pageChanged(StateChange_StyleChanged);
    return true;
}

bool Session::raiseFrame(long id) {
    return markIf(m_page.raise(id));
}

bool Session::lowerFrame(long id) {
    return markIf(m_page.lower(id));
}

/// For changes that have no notice of their own.
bool Session::markIf(bool isChanged) {
    if (isChanged) {
        m_drawing.mark();
    }
    return isChanged;
}

void Session::resizeWorkArea(const WorkArea& area) {
    m_page.resizeWorkArea(area);
    m_drawing.mark();
}

bool Session::activateFrame(long id) {
    return announceIfActivated([this, id] { return m_page.activate(id); });
}

bool Session::activateTopFrame() {
    return announceIfActivated([this] { return m_page.activateTop(); });
}

bool Session::pushTopFrame() {
    return announceIfActivated([this] { return m_page.pushTop(); });
}

bool Session::announceIfActivated(const std::function<bool()>& change) {
    const Frame* const before = m_page.active();
    if (!change()) {
        return false;
    }
    if (m_page.active() != before) {
        pageChanged(StateChange_FrameActivated);
    }
    return true;
}

bool Session::deleteFrame(long id) {
    const Frame* const before = m_page.active();
    if (!m_page.deleteFrame(id)) {
        return false;
    }
    pageChanged(StateChange_FrameDeleted);
    if (m_page.active() != before && m_page.active() != nullptr) {
        pageChanged(StateChange_FrameActivated);
    }
    return true;
}

bool Session::putBack(const PageState& state) {
    if (isAnimating()) {
        return false;
    }
    const PageState before = m_page.state();
    if (before == state) {
        return true;
    }
    m_page.putBack(state);
    m_drawing.mark();
    for (const StateChange_e change : changesBetween(before, m_page.state())) {
        m_stateChanges.notify(change);
    }
    return true;
}

void Session::exportPicture(const std::string& fileName, ExportRegion_e region, int width,
                            int supersample) {
    const PictureRequest request =
        pictureRequest(m_page, m_ports.renderer, region, width, supersample);
    PartFile file(fileName, m_ports.tell);
    const Picture picture = m_drawing.picture(request);
    try {
        m_ports.pictures.write(picture, file.path());
    } catch (const HostError& error) {
        throw HostError(file.namingDestination(error.what()));
    }
    file.commit();
}

void Session::pageChanged(StateChange_e change) {
    m_drawing.mark();
    m_stateChanges.notify(change);
}

std::string Session::callAddOn(const std::string& what, const std::function<void()>& call) {
    return m_callGuard.call(what, call);
}

AddOnCaller Session::addOnCaller() {
    return [this](const std::string& what, const std::function<void()>& call) {
        const std::string error = callAddOn(what, call);
        if (!error.empty()) {
            showAddOnError(error);
        }
    };
}

/// A message that finds no memory gets lost: there is nobody whom its loss could be told.
void Session::showAddOnError(const std::string& error) {
    try {
        withSecondTry([&] { m_ports.prompts.showError(error); });
    } catch (const std::bad_alloc&) {
        m_trace.exception("Out of memory.");
    }
}

void Session::onIdle() {
    m_idle.run();
    try {
        m_drawing.drawIfDue();
    } catch (const std::exception& error) {
        m_ports.prompts.showError(messageOf(error));
    }
}

void Session::quit() {
    if (std::exchange(m_hasQuit, true)) {
        return;
    }
    m_stateChanges.notify(StateChange_HostQuit);
    m_idle.close();
    m_drawing.restoreSuspensions(0);
    m_menuOptions.close();
    m_controls.close();
}

} // namespace corvane::host
