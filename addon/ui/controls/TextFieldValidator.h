// Binds a text field of the host to a bounded number.
#pragma once

#include "addon/base/HostLock.h"
#include "addon/ui/controls/Message.h"
#include "addon/ui/controls/StreamText.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <string>

namespace corvane::corutiltools {

// Keeps the last valid value. T is int or double.
template <typename T>
class TextFieldValidator {
public:
    // Values are always kept within minimum and maximum. A bound that is not present must be the
    // extreme value of T; it is left out of the message.
    TextFieldValidator(T value, bool hasMinimum, bool hasMaximum, T minimum, T maximum)
        : m_value(value),
          m_hasMinimum(hasMinimum),
          m_hasMaximum(hasMaximum),
          m_minimum(minimum),
          m_maximum(maximum) {}

    // There is no field before this.
    void setGuiID(int guiId) { m_guiId = guiId; }

    T value() const { return m_value; }

    // Takes the nearest valid value and shows it.
    void setValue(T value) {
        m_value = std::clamp(value, m_minimum, m_maximum);
        updateTextField();
    }

    // Takes what the user entered. Text that is no number in range is refused with a message and
    // replaced in the field by the last valid value; what follows a number does not count.
    bool validate(const std::string& text) {
        T value{};
        const bool isValid =
            readStreamText(text, value) && m_minimum <= value && value <= m_maximum;
        if (isValid) {
            m_value = value;
        } else {
            showErrorMessage("Invalid input. Input must be a number" + rangeText() + ".");
        }
        updateTextField();
        return isValid;
    }

    // Shows the value in the field, if there is one.
    void updateTextField() const {
        if (m_guiId == COR_HANDLE_NOT_CREATED) {
            return;
        }
        const HostLock lock;
        CorGUITextFieldSetString(m_guiId, streamText(m_value).c_str());
    }

private:
    std::string rangeText() const {
        if (m_hasMinimum && m_hasMaximum) {
            return " between " + streamText(m_minimum) + " and " + streamText(m_maximum);
        }
        if (m_hasMinimum) {
            return " greater than or equal to " + streamText(m_minimum);
        }
        if (m_hasMaximum) {
            return " less than or equal to " + streamText(m_maximum);
        }
        return {};
    }

    int m_guiId = COR_HANDLE_NOT_CREATED;
    T m_value;
    bool m_hasMinimum;
    bool m_hasMaximum;
    T m_minimum;
    T m_maximum;
};

} // namespace corvane::corutiltools
