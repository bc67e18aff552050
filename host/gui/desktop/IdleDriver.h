// Runs the host's idle work when the event loop is idle.
#pragma once

#include <QObject>

namespace corvane::host {
class Host;
}

namespace corvane::gui {

class IdleRequests;
class PictureScreen;

/// Idle work waits for the program's own event loop: it does not run while an animation or a macro
/// handles events in between, nor in the loop of a message box, which may be up in the middle of a
/// call of an add-on. There, pictures that are due are drawn nevertheless.
class IdleDriver : public QObject {
    Q_OBJECT

public:
    /// All must outlive the driver.
    IdleDriver(host::Host& host, const PictureScreen& screen, IdleRequests& requests);

    void requestIdle();

Q_SIGNALS:
    void idle(); ///< the host's own idle work is done, and nothing else is going on

private:
    void run();
    bool isInterrupting() const;

    host::Host& m_host;
    const PictureScreen& m_screen;
    IdleRequests& m_requests;
};

} // namespace corvane::gui
