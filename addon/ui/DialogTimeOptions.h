// The dialog in which the user chooses how solution time runs during a flight.
#pragma once

#include "addon/model/Records.h"
#include "addon/ui/controls/TextFieldValidator.h"

#include <boost/function.hpp>

#include <map>
#include <memory>

namespace corvane::test {
class FreshDialogs;
}

namespace corvane::corutiltools {

// One for the whole process. Modal; confirming it always turns the animation of time on.
class DialogTimeOptions {
public:
    // Made on first use.
    static DialogTimeOptions& instance();

    static bool okToLaunch(long clientData);

    DialogTimeOptions(const DialogTimeOptions&) = delete;
    DialogTimeOptions& operator=(const DialogTimeOptions&) = delete;

    // Shows the dialog and returns. OK changes the options, which must live until then, and calls
    // onDone(true); Cancel leaves them alone and calls onDone(false).
    void launch(TimeAnimationOptions_s& options, const boost::function<void(bool)>& onDone);

    // Dims the number of cycles unless time repeats.
    void updateSensitivities(TimeAnimationOperation_e operation);

    // Closes the dialog without a word to whoever launched it.
    static void drop();

    // For the host.
    static void init_CB();
    static void ok_BTN_CB();
    static void cancel_BTN_CB();
    static void help_BTN_CB();
    static void animationOperation_RADIO_CB(const long* position);
    static long numCycles_TFS_ValueChanged_CB(const char* text);
    static void numCycles_TFS_ButtonUp_CB();
    static void numCycles_TFS_ButtonDown_CB();

private:
    friend class test::FreshDialogs;

    DialogTimeOptions();

    void initAnimationMap();
    void showOptions();
    void selectOperation(TimeAnimationOperation_e operation);
    void takeOptions();
    void stepNumCycles(int step);

    // Also forgets the options.
    void close();

    static std::unique_ptr<DialogTimeOptions> m_instance;

    TextFieldValidator<int> m_numCycles;
    TimeAnimationOptions_s* m_options = nullptr; // not owned; null while the dialog is not up
    std::map<long, TimeAnimationOperation_e> m_operations; // by position in the radio box
    boost::function<void(bool)> m_onDone;
};

} // namespace corvane::corutiltools
