#include "host/app/DisplayLoss.h"

#include "host/app/ExitCode.h"
#include "host/app/Messages.h"

#include <QString>
#include <QtGlobal>
#include <cstdlib>
#include <utility>

namespace corvane::app {

namespace {

std::function<void()> rescueAll;
QtMessageHandler handlerBefore = nullptr;

/// Qt tells it in words, and nowhere else, before it calls exit().
bool tellsOfLoss(const QString& text) {
    return text.startsWith(QLatin1String("The X11 connection broke")) ||
           text.startsWith(QLatin1String("The Wayland connection"));
}

void handle(QtMsgType type, const QMessageLogContext& where, const QString& text) {
    if (!tellsOfLoss(text)) {
        handlerBefore(type, where, text);
        return;
    }
    say("The display is gone, so the window is too; a movie that was not complete was not "
        "written.");
    std::exchange(rescueAll, [] {})();
    // Nothing of Qt can be put away without its display.
    std::_Exit(ExitFailed);
}

} // namespace

DisplayLoss::DisplayLoss(std::function<void()> rescue) {
    rescueAll = std::move(rescue);
    handlerBefore = qInstallMessageHandler(handle);
}

DisplayLoss::~DisplayLoss() {
    qInstallMessageHandler(handlerBefore);
    rescueAll = nullptr;
}

} // namespace corvane::app
