// The host as a whole: its state, its rules, and its ports to the outside.
#pragma once

#include "host/core/Ports.h"
#include "host/core/StatusLine.h"
#include "host/core/addons/AddOnCommands.h"
#include "host/core/addons/AddOnWall.h"
#include "host/core/addons/AddOns.h"
#include "host/core/addons/CallTrace.h"
#include "host/core/addons/IdleQueue.h"
#include "host/core/addons/Locks.h"
#include "host/core/addons/StateChanges.h"
#include "host/core/controls/ControlActions.h"
#include "host/core/controls/Controls.h"
#include "host/core/controls/MenuOptions.h"
#include "host/core/macro/MacroPlayer.h"
#include "host/core/macro/MacroRecorder.h"
#include "host/core/page/Page.h"
#include "host/core/page/StyleTree.h"
#include "host/core/picture/Drawing.h"
#include "host/core/picture/ExportSetup.h"
#include "host/core/picture/Exporter.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {

/// References must outlive the application.
struct Ports {
    Renderer& renderer;
    DataReader& reader;
    MovieWriters& movies;
    StatusDisplay& status;
    Dialogs& dialogs;
    PictureFiles& pictures;
    Screen* screen = nullptr;       ///< null: nobody looks
    IdleTimer* idleTimer = nullptr; ///< null: no event loop
    Widgets* widgets = nullptr;     ///< null: add-ons can make no dialogs
    MainMenu* mainMenu = nullptr;   ///< null: add-ons can add no menu options
};

/// Everything here belongs to the one user-interface thread, the one that made it, but for what is
/// said of any thread.
class Application {
public:
    explicit Application(Ports ports);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// The one that the C operations work on: the youngest one alive, null without one. Add-ons may
    /// still call when the process ends.
    static Application* current();
    /// Whether this is the thread of the current application; true without one. May be asked on any
    /// thread.
    static bool isHomeThread();
    /// Tells the trace of the current application what an add-on did wrong. May be called on any
    /// thread.
    static void tellMisuse(const std::string& what);

    Page& page() { return m_page; }
    Locks& locks() { return m_locks; }
    Drawing& drawing() { return m_drawing; }
    IdleQueue& idle() { return m_idle; }
    StateChanges& stateChanges() { return m_stateChanges; }
    StatusLine& status() { return m_status; }
    ExportSetup& exportSetup() { return m_exportSetup; }
    Exporter& exporter() { return m_exporter; }
    AddOns& addOns() { return m_addOns; }
    AddOnCommands& addOnCommands() { return m_addOnCommands; }
    MacroRecorder& recorder() { return m_recorder; }
    MacroPlayer& macros() { return m_macros; }
    CallTrace& trace() { return m_trace; }
    Dialogs& dialogs() { return m_ports.dialogs; }
    Controls& controls() { return m_controls; }
    ControlActions& controlActions() { return m_controlActions; }
    MenuOptions& menuOptions() { return m_menuOptions; }

    /// Style values of the frame in question (Page::current) and of the application ("Interface",
    /// "ExportSetup"). Without a frame, or with one that is not 3D, the frame's paths answer
    /// StyleSet_NotAllowed and StyleGet_NotAvailable.
    StyleSetResult_e setStyle(const StylePath& path, const StyleInput& value);
    StyleGetResult_e getStyle(const StylePath& path, StyleInput& value) const;
    /// What kind of value stands there; null without one, and where the others do not answer.
    const StyleLeaf* findStyle(const StylePath& path) const;

    /// What a user does in a window, as one command of the macro language: it is carried out, and
    /// recorded while a macro is being recorded. Throws like MacroPlayer::run; what fails is not
    /// recorded.
    void perform(const std::string& command, const std::vector<std::string>& words);

    /// Reads the files into the active frame (made when there is none), chooses plots and view, and
    /// tells the listeners. Throws HostError; the data loaded before stay then.
    void openData(const std::vector<std::string>& files);
    /// Without data or with a time that is not finite: false, and nothing changes.
    bool setSolutionTime(double time);
    /// False without a 3D frame, for an unknown axis and for degrees that are not finite.
    bool rotateView(RotateAxis_e axis, double degrees);
    /// False without a 3D frame. The values must lie within the bounds of the styles of the view.
    bool setView(const View3D& view);
    bool fitView();                    ///< false without a 3D frame and data with an extent
    bool setPlotType(PlotType_e type); ///< false without a frame
    /// Makes the change and tells about it. False without such a frame.
    bool activateFrame(long id);
    bool deleteFrame(long id);
    /// Writes a PNG file, whole or not at all. The height follows from the region. Throws
    /// HostError.
    void exportPicture(const std::string& fileName, ExportRegion_e region, int width,
                       int supersample);
    /// Announces a change made to the page, and marks it for drawing.
    void pageChanged(StateChange_e change);

    /// Calls into an add-on, behind the wall. Answers the text of what it threw, empty when
    /// nothing.
    std::string callAddOn(const std::string& what, const std::function<void()>& call);

    /// Whether an add-on plays or records a flight.
    bool isAnimating() const { return m_status.isActive() || m_exporter.isRecording(); }

    /// To be called by the event loop when nothing else is to be done.
    void onIdle();
    /// Tells the listeners that the host ends, and drops idle work. Only the first call counts.
    void quit();

private:
    void bindApplicationStyles();
    const StyleTree* treeFor(const StylePath& path) const;
    void announce(StyleEffect effect);
    void announceIfMoved(const Frame& frame, const View3D& before);
    void becomeCurrent();
    void bindAddOns();
    void callAndReport(const std::string& what, const std::function<void()>& call);
    Frame* spatialFrame() const; ///< the frame in question when it shows 3D

    Ports m_ports;
    CallTrace m_trace;
    Page m_page;
    Locks m_locks;
    ExportSetup m_exportSetup;
    bool m_useDisplayLists = true;
    bool m_hasQuit = false;
    StyleTree m_styles; ///< of the application
    Drawing m_drawing;
    IdleQueue m_idle;
    StateChanges m_stateChanges;
    StatusLine m_status;
    Exporter m_exporter;
    AddOns m_addOns;
    AddOnCommands m_addOnCommands;
    MacroRecorder m_recorder;
    MacroPlayer m_macros;
    Controls m_controls;
    ControlActions m_controlActions;
    MenuOptions m_menuOptions;
    AddOnWall m_wall;
};

} // namespace corvane::host
