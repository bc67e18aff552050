// Work that waits for the host's idle time.
#include "addon/base/OnIdleManager.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

OnIdleManager::~OnIdleManager() = default;

void OnIdleManager::addCallback(const boost::function<void()>& callback) {
    if (m_callback) {
        return;
    }
    m_callback = callback;
    const HostLock lock;
    CorUtilOnIdleQueueAddCallback(onIdleCallback, reinterpret_cast<long>(this));
}

void OnIdleManager::onIdleCallback(long clientData) {
    reinterpret_cast<OnIdleManager*>(clientData)->doCallback();
}

void OnIdleManager::doCallback() {
    struct Clearing {
        boost::function<void()>& callback;

        ~Clearing() { callback.clear(); }
    };
    const Clearing afterwards{m_callback};
    m_callback();
}

} // namespace corvane::corutiltools
