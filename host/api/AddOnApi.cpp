// Registration of add-ons.
#include "hostapi/CorAddOn.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

CorAddOnID CorUtilAddOnRegister(int interfaceOfAddOn, const char* name, const char* version,
                                const char* author) {
    const TracedCall call("CorUtilAddOnRegister", interfaceOfAddOn, name, version, author);
    return call.answer(CorAddOnID(nullptr), [&](Session& session) -> CorAddOnID {
        if (!name) {
            call.misuse("name is NULL");
            return nullptr;
        }
        if (interfaceOfAddOn != interfaceNumber) {
            call.misuse(textOf(name) + " was made for interface " +
                        std::to_string(interfaceOfAddOn) + ", this host offers " +
                        std::to_string(interfaceNumber));
        }
        return session.addOns().add({interfaceOfAddOn, name, textOf(version), textOf(author)});
    });
}
