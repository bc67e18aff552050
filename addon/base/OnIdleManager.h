// Work that waits for the host's idle time.
#pragma once

#include <boost/function.hpp>

namespace corvane::corutiltools {

// Holds at most one callback at a time: what is asked for while one is pending is taken for the
// same wish. Its address is with the host meanwhile, so it must outlive what is pending.
class OnIdleManager {
public:
    OnIdleManager() = default;
    virtual ~OnIdleManager();

    OnIdleManager(const OnIdleManager&) = delete;
    OnIdleManager& operator=(const OnIdleManager&) = delete;

    // Defers the callback to the next idle time, unless one is pending already.
    void addCallback(const boost::function<void()>& callback);

    // For the host: runs the callback of the manager whose address it is given.
    static void onIdleCallback(long clientData);

    // Runs what is pending and forgets it, also when it throws. It counts as pending while it runs,
    // so it cannot ask for itself again. Throws boost::bad_function_call when nothing is pending.
    void doCallback();

private:
    boost::function<void()> m_callback;
};

} // namespace corvane::corutiltools
