// The state of the host and the rules by which it changes.
#pragma once

#include "host/core/addons/AddOnCommands.h"
#include "host/core/addons/AddOns.h"
#include "host/core/addons/CallTrace.h"
#include "host/core/addons/IdleQueue.h"
#include "host/core/addons/Locks.h"
#include "host/core/addons/StateChanges.h"
#include "host/core/controls/ControlActions.h"
#include "host/core/controls/Controls.h"
#include "host/core/controls/MenuOptions.h"
#include "host/core/files/PartFile.h"
#include "host/core/page/Page.h"
#include "host/core/page/StyleTree.h"
#include "host/core/picture/Drawing.h"
#include "host/core/picture/ExportSetup.h"
#include "host/core/picture/Exporter.h"
#include "host/core/ports/Ports.h"
#include "host/core/session/AddOnCallGuard.h"
#include "host/core/session/StatusLine.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {

/// References must outlive the session.
struct Ports {
    Renderer& renderer;
    DataReader& reader;
    MovieWriters& movies;
    StatusDisplay& status;
    UserPrompts& prompts;
    PictureFiles& pictures;
    Screen* screen = nullptr;       ///< null: nobody looks
    IdleTimer* idleTimer = nullptr; ///< null: no event loop
    Widgets* widgets = nullptr;     ///< null: add-ons can make no dialogs
    MainMenu* mainMenu = nullptr;   ///< null: add-ons can add no menu options
    /// For what users may want to know, but nobody has to answer. It may be told anywhere.
    PartFile::Tell tell = [](const std::string&) {};
};

/// Everything here belongs to the one user-interface thread, the one that made it. Knows nothing of
/// the macro language: see Host.
class Session {
public:
    explicit Session(Ports ports);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// What is shown. It changes by the rules below, which mark it for drawing and tell the
    /// listeners.
    const Page& page() const { return m_page; }
    /// For whoever puts a page together without telling anybody, as tests do; pageChanged() tells.
    Page& silentPage() { return m_page; }
    /// Tells the listeners, and marks the page for drawing.
    void pageChanged(StateChange_e change);
    Locks& locks() { return m_locks; }
    Drawing& drawing() { return m_drawing; }
    IdleQueue& idle() { return m_idle; }
    StateChanges& stateChanges() { return m_stateChanges; }
    StatusLine& status() { return m_status; }
    ExportSetup& exportSetup() { return m_exportSetup; }
    Exporter& exporter() { return m_exporter; }
    AddOns& addOns() { return m_addOns; }
    AddOnCommands& addOnCommands() { return m_addOnCommands; }
    CallTrace& trace() { return m_trace; }
    UserPrompts& prompts() { return m_ports.prompts; }
    const PartFile::Tell& tell() const { return m_ports.tell; }
    std::vector<DataFormat> dataFormats() const { return m_ports.reader.formats(); }
    Controls& controls() { return m_controls; }
    ControlActions& controlActions() { return m_controlActions; }
    MenuOptions& menuOptions() { return m_menuOptions; }

    /// Style values of the frame in question (Page::current) and of the application ("Interface",
    /// "ExportSetup"). Without a frame, or with one that is not 3D, the frame's paths answer
    /// StyleSet_NotAllowed and StyleGet_NotAvailable.
    StyleSetResult_e setStyle(const StylePath& path, const StyleInput& value);
    /// The same for a leaf that was found.
    StyleSetResult_e setStyle(const StyleLeaf& leaf, const StyleInput& value);
    StyleGetResult_e getStyle(const StylePath& path, StyleInput& value) const;
    /// What kind of value stands there; null without one, and where the others do not answer.
    const StyleLeaf* findStyle(const StylePath& path) const;
    /// Where paths that begin with this keyword lead: to the session's own styles, or to those of
    /// the frame that is shown; null without one.
    const StyleTree* stylesFor(std::string_view firstKeyword) const;

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
    /// On top of the stack and active.
    Frame& createFrame(const Placement& placement);
    /// False without such a frame.
    bool placeFrame(long id, const Placement& placement);
    bool raiseFrame(long id);
    bool lowerFrame(long id);
    /// See Page::resizeWorkArea.
    void resizeWorkArea(const WorkArea& area);
    /// Whether there is a frame. See Page.
    bool activateTopFrame();
    bool pushTopFrame();
    /// A walk over the frames changes nothing that is shown. See Page.
    void startFrameWalk() { m_page.startWalk(); }
    bool nextFrameOfWalk() { return m_page.nextOfWalk(); }
    void endFrameWalk() { m_page.endWalk(); }
    /// False without such a frame.
    bool activateFrame(long id);
    bool deleteFrame(long id);
    /// Shows what the state says, and tells about all that is another then. False, and nothing
    /// changes, during an animation.
    bool putBack(const PageState& state);
    /// Writes a PNG file, whole or not at all. The height follows from the region. Throws
    /// HostError.
    void exportPicture(const std::string& fileName, ExportRegion_e region, int width,
                       int supersample);

    /// Calls into an add-on, behind the guard. Answers the text of what it threw, empty when
    /// nothing.
    std::string callAddOn(const std::string& what, const std::function<void()>& call);

    /// Whether an add-on plays or records a flight.
    bool isAnimating() const { return m_status.isActive() || m_exporter.isRecording(); }

    /// To be called by the event loop when nothing else is to be done.
    void onIdle();
    /// Tells the listeners that the host ends, and drops idle work. Only the first call counts.
    void quit();

private:
    void bindOwnStyles();
    void announce(StyleEffect effect);
    bool markIf(bool isChanged);
    void announceIfMoved(const Frame& frame, const View3D& before);
    /// Makes the change, and tells when another frame is active than before. Answers what it did.
    bool announceIfActivated(const std::function<bool()>& change);
    AddOnCaller addOnCaller(); ///< calls behind the guard, and tells the user what was thrown
    void showAddOnError(const std::string& error);

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
    Controls m_controls;
    ControlActions m_controlActions;
    MenuOptions m_menuOptions;
    AddOnCallGuard m_callGuard;
};

} // namespace corvane::host
