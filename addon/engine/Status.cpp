// A percent-done indicator on the host's status line.
#include "addon/engine/Status.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

Status::Status(double total, const std::string& message, int messageMode,
               const std::string& cancelHint)
    : m_total(total), m_messageMode(messageMode), m_cancelHint(cancelHint) {
    const CorBool hasSteps = m_total > 0.0 ? TRUE : FALSE;
    CorUtilStatusStartPercentDone(buildStatusMessage(message).c_str(), hasSteps, hasSteps);
}

Status::~Status() {
    CorUtilStatusFinishPercentDone();
}

void Status::setMessage(const std::string& message) const {
    CorUtilStatusSetPercentDoneText(buildStatusMessage(message).c_str());
}

Status& Status::operator++() {
    m_count += 1.0;
    update();
    return *this;
}

void Status::update() {
    if (!(m_total > 0.0)) {
        return;
    }
    const double percent = m_count / m_total * 100.0;
    const int shown = percent > 100.0 ? 100 : static_cast<int>(percent);
    m_canceled = !CorUtilStatusCheckPercentDone(shown);
}

std::string Status::buildStatusMessage(const std::string& message) const {
    return m_messageMode == messagesUnchanged ? message : message + m_cancelHint;
}

} // namespace corvane::corutiltools
