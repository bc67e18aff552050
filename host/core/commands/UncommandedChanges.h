// What changes without a command, as lines of the macro that is being recorded.
#pragma once

#include "host/core/macro/MacroRecorder.h"
#include "host/core/page/PageState.h"

namespace corvane::host {

class Session;

/// The mouse turns views, add-ons set views and times, windows are resized: none of it is a
/// command. While a macro is being recorded, this compares the page with what the macro knows of
/// it. It follows the active frame; that an add-on activates or restacks frames is not noticed.
class UncommandedChanges : private RecordingListener {
public:
    /// Listens to the recorder. Session and recorder must outlive it.
    UncommandedChanges(Session& session, MacroRecorder& recorder);
    ~UncommandedChanges() override;
    UncommandedChanges(const UncommandedChanges&) = delete;
    UncommandedChanges& operator=(const UncommandedChanges&) = delete;

    /// Records what has changed since remember(). Nothing while work is under way: what that leads
    /// to is known when it has ended.
    void catchUp();
    /// The macro knows the page as it is now.
    void remember();

    /// Round each command of the language. isRecorded: what it does is in the macro, as a line of
    /// its own; it is, too, when an add-on has recorded a command meanwhile.
    void commandBegins();
    void commandEnded(bool isRecorded);

private:
    void recordingStarted() override { remember(); }
    void recordingCatchesUp() override { catchUp(); }
    void addOnCommandRecorded() override;
    void catchUpFrame(const FrameState& frame, const FrameState& seen);

    Session& m_session;
    MacroRecorder& m_recorder;
    bool m_hasAddOnRecorded = false;
    PageState m_seen;
};

} // namespace corvane::host
