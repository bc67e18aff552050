// What helpers do in the tests of them.
#pragma once

#include "host/core/process/Task.h"

namespace corvane::test {

extern const host::Task answerNumber; ///< exits with the number that is its argument
extern const host::Task raiseSignal;  ///< the one whose number is its argument
extern const host::Task throwError;
extern const host::Task waitForEver;
extern const host::Task computeForEver;
extern const host::Task takeMemory;    ///< as many bytes as its argument says
extern const host::Task echoArguments; ///< writes them to its descriptor, each after its length
extern const host::Task copyText;      ///< from its first descriptor to the others, and exits with
                                       ///< the number of those
extern const host::Task askForSignal;  ///< exits with 1 when the signal of its argument is blocked
                                       ///< or ignored, else with 0
extern const host::Task countServerFiles;    ///< exits with the number of files its parent has open
extern const host::Task countServerChildren; ///< and with that of its children, zombies too

} // namespace corvane::test
