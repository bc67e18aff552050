// The percent-done display.
#include "hostapi/CorStatus.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"
#include "host/core/base/SecondTry.h"

using namespace corvane::host;

void CorUtilStatusStartPercentDone(const char* text, CorBool showStopButton,
                                   CorBool showProgressBar) {
    const TracedCall call("CorUtilStatusStartPercentDone", text, showStopButton != FALSE,
                          showProgressBar != FALSE);
    call.perform([&](Session& session) {
        if (!text) {
            call.misuse("text is NULL");
        }
        // The caller will finish what it started, with or without a text.
        const std::string shown = withSecondTry([&] { return textOf(text); });
        session.status().start(shown, showStopButton != FALSE, showProgressBar != FALSE);
    });
}

void CorUtilStatusSetPercentDoneText(const char* text) {
    const TracedCall call("CorUtilStatusSetPercentDoneText", text);
    call.perform([&](Session& session) {
        if (text) {
            session.status().setText(text);
        } else {
            call.misuse("text is NULL");
        }
    });
}

CorBool CorUtilStatusCheckPercentDone(int percent) {
    return TracedCall("CorUtilStatusCheckPercentDone", percent)
        .answer(false, [&](Session& session) { return session.status().check(percent); });
}

void CorUtilStatusFinishPercentDone(void) {
    const TracedCall call("CorUtilStatusFinishPercentDone");
    call.perform([&](Session& session) {
        if (session.status().isActive()) {
            session.status().finish();
        } else {
            call.misuse("no display is open");
        }
    });
}
