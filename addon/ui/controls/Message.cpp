// Messages to the user, under the host's lock.
#include "addon/ui/controls/Message.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

void showErrorMessage(const std::string& message) {
    const HostLock lock;
    CorUtilDialogErrMsg(message.c_str());
}

void showNotice(const std::string& message) {
    const HostLock lock;
    CorUtilDialogMessageBox(message.c_str(), MessageBox_Notice);
}

} // namespace corvane::corutiltools
