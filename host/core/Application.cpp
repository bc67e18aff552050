// Puts the parts of the host together.
#include "host/core/Application.h"

#include "host/core/HostError.h"
#include "host/core/PartFile.h"
#include "host/core/picture/PictureRequests.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <thread>
#include <utility>

namespace corvane::host {

namespace {

/// Never destroyed: add-ons may ask for the application when the process ends.
std::vector<Application*>& alive() {
    static auto* applications = new std::vector<Application*>;
    return *applications;
}

/// Only the home thread changes the list, and may read it without; others must not see it change.
std::mutex& aliveMutex() {
    static auto* mutex = new std::mutex;
    return *mutex;
}

/// Of the current application; no thread at all without one.
std::atomic<std::thread::id> homeThread{};

/// A page that is not shown yet has no work area; a frame needs an extent all the same.
Placement firstPlacement(const Page& page) {
    const Placement area = page.regionOf(ExportRegion_WorkArea);
    return area.width > 0.0 && area.height > 0.0 ? area : Placement{};
}

} // namespace

Application::Application(Ports ports)
    : m_ports(ports),
      m_drawing(m_page, m_locks, ports.renderer, ports.screen, ports.idleTimer),
      m_idle(ports.idleTimer),
      m_status(ports.status),
      m_exporter(m_page, m_exportSetup, m_drawing, ports.renderer, ports.movies),
      m_macros(*this),
      m_controls(ports.widgets),
      m_controlActions(m_controls),
      m_menuOptions(ports.mainMenu),
      m_wall(m_locks, m_drawing, m_controls, m_trace) {
    bindApplicationStyles();
    bindAddOns();
    m_status.hasFailed = [this] { return m_exporter.isRecording() && m_exporter.hasFailed(); };
    becomeCurrent();
}

Application::~Application() {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    std::erase(alive(), this);
    homeThread = alive().empty() ? std::thread::id() : std::this_thread::get_id();
}

void Application::becomeCurrent() {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    alive().push_back(this);
    homeThread = std::this_thread::get_id();
}

bool Application::isHomeThread() {
    const std::thread::id home = homeThread;
    return home == std::thread::id() || home == std::this_thread::get_id();
}

void Application::tellMisuse(const std::string& what) {
    const std::lock_guard<std::mutex> lock(aliveMutex());
    if (const Application* const application = current()) {
        application->m_trace.misuse(what);
    }
}

void Application::bindAddOns() {
    const AddOnCaller caller = [this](const auto& what, const auto& call) {
        callAndReport(what, call);
    };
    m_idle.caller = caller;
    m_stateChanges.caller = caller;
    m_controls.caller = caller;
    m_menuOptions.caller = caller;
    if (m_ports.widgets != nullptr) {
        m_ports.widgets->attach(m_controlActions);
    }
}

Application* Application::current() {
    return alive().empty() ? nullptr : alive().back();
}

void Application::bindApplicationStyles() {
    StyleLeaf displayLists;
    displayLists.path = {"Interface", "UseDisplayLists"};
    displayLists.target = &m_useDisplayLists;
    displayLists.effect = StyleEffect::None;
    m_styles.bind(std::move(displayLists));
    bindExportSetup(m_styles, m_exportSetup, [this] { return !m_exporter.isRecording(); });
}

Frame* Application::spatialFrame() const {
    Frame* frame = m_page.current();
    return frame != nullptr && frame->plotType == PlotType_Cartesian3D ? frame : nullptr;
}

const StyleTree* Application::treeFor(const StylePath& path) const {
    if (!path.empty() && (equalIgnoringCase(path.front(), "ExportSetup") ||
                          equalIgnoringCase(path.front(), "Interface"))) {
        return &m_styles;
    }
    const Frame* frame = spatialFrame();
    return frame != nullptr ? &frame->styles() : nullptr;
}

const StyleLeaf* Application::findStyle(const StylePath& path) const {
    const StyleTree* tree = treeFor(path);
    return tree != nullptr ? tree->find(path) : nullptr;
}

StyleSetResult_e Application::setStyle(const StylePath& path, const StyleInput& value) {
    const StyleTree* tree = treeFor(path);
    if (tree == nullptr) {
        return StyleSet_NotAllowed;
    }
    const StyleLeaf* leaf = tree->find(path);
    if (leaf == nullptr) {
        return StyleSet_BadPath;
    }
    const StyleSetResult_e result = StyleTree::set(*leaf, value);
    if (result == StyleSet_Ok) {
        announce(leaf->effect);
    }
    return result;
}

StyleGetResult_e Application::getStyle(const StylePath& path, StyleInput& value) const {
    const StyleTree* tree = treeFor(path);
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

void Application::announce(StyleEffect effect) {
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

void Application::perform(const std::string& command, const std::vector<std::string>& words) {
    m_macros.run(command, words);
}

void Application::openData(const std::vector<std::string>& files) {
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

bool Application::setSolutionTime(double time) {
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

bool Application::rotateView(RotateAxis_e axis, double degrees) {
    Frame* frame = spatialFrame();
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

bool Application::setView(const View3D& view) {
    Frame* frame = spatialFrame();
    if (frame == nullptr) {
        return false;
    }
    const View3D before = std::exchange(frame->view, view);
    announceIfMoved(*frame, before);
    return true;
}

bool Application::fitView() {
    Frame* frame = spatialFrame();
    if (frame == nullptr || !frame->data() || frame->data()->bounds.isEmpty()) {
        return false;
    }
    const View3D before = frame->view;
    fit(frame->view, frame->data()->bounds, frame->placement.aspect());
    announceIfMoved(*frame, before);
    return true;
}

void Application::announceIfMoved(const Frame& frame, const View3D& before) {
    if (frame.view != before) {
        pageChanged(StateChange_ViewChanged);
    }
}

bool Application::setPlotType(PlotType_e type) {
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

bool Application::activateFrame(long id) {
    const Frame* const before = m_page.active();
    if (!m_page.activate(id)) {
        return false;
    }
    if (m_page.active() != before) {
        pageChanged(StateChange_FrameActivated);
    }
    return true;
}

bool Application::deleteFrame(long id) {
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

void Application::exportPicture(const std::string& fileName, ExportRegion_e region, int width,
                                int supersample) {
    const PictureRequest request =
        pictureRequest(m_page, m_ports.renderer, region, width, supersample);
    PartFile file(fileName);
    m_ports.pictures.write(m_drawing.picture(request), file.path());
    file.commit();
}

void Application::pageChanged(StateChange_e change) {
    m_drawing.mark();
    m_stateChanges.notify(change);
}

std::string Application::callAddOn(const std::string& what, const std::function<void()>& call) {
    return m_wall.call(what, call);
}

void Application::callAndReport(const std::string& what, const std::function<void()>& call) {
    const std::string error = callAddOn(what, call);
    if (!error.empty()) {
        m_ports.dialogs.showError(error);
    }
}

void Application::onIdle() {
    m_idle.run();
    try {
        m_drawing.drawIfDue();
    } catch (const HostError& error) {
        m_ports.dialogs.showError(error.what());
    }
}

void Application::quit() {
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
