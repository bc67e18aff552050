// Gives the host its idle time.
#pragma once

#include "host/core/ports/Ports.h"

#include <QObject>
#include <QTimer>
#include <functional>

namespace corvane::host {
class Host;
}

namespace corvane::gui {

class PictureScreen;

/// The host's idle work runs when the program's own event loop has nothing else to do: not while
/// something runs that looks after events by the way, and not in the loop of a message box, which
/// may be up in the middle of a call of an add-on. There, drawing that is due is done nevertheless.
class IdleDriver : public QObject, public host::IdleTimer {
    Q_OBJECT

public:
    explicit IdleDriver(const PictureScreen& screen);

    /// Without a host nothing runs. It must be taken away before it ends.
    void setHost(host::Host* host);
    void requestIdle() override;

    /// Called after the host's own idle work, with nothing else going on.
    std::function<void()> onIdle;

private:
    void run();
    bool isInterrupting() const;

    const PictureScreen& m_screen;
    host::Host* m_host = nullptr;
    QTimer m_timer;
};

} // namespace corvane::gui
