// Remembers what a list model reported.
#pragma once

#include "addon/lists/ListModelObserverInterface.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <vector>

namespace corvane::corutiltools {

using ChangeInfo_s = ListModelGenericInterface::ChangeInfo_s;

inline bool operator==(const ChangeInfo_s& left, const ChangeInfo_s& right) {
    return left.changeType == right.changeType && left.indices == right.indices;
}

inline void PrintTo(const ChangeInfo_s& change, std::ostream* out) {
    *out << "kind " << change.changeType << " " << testing::PrintToString(change.indices);
}

} // namespace corvane::corutiltools

namespace corvane::test {

using corutiltools::ChangeInfo_s;

class RecordingObserver : public corutiltools::ListModelObserverInterface {
public:
    void modelChanged(const ChangeInfo_s& change) override {
        changes.push_back(change);
        if (reaction) {
            reaction();
        }
    }

    std::vector<ChangeInfo_s> changes;

    // Run after each change was remembered.
    std::function<void()> reaction;
};

} // namespace corvane::test
