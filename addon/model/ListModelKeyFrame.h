// The list of key frames that is shown, saved and played.
#pragma once

#include "addon/lists/ListModelAbstract.h"
#include "addon/model/Records.h"

#include <string>
#include <vector>

namespace corvane::corutiltools {

// Starts empty. Operations on one key frame throw std::out_of_range for an index at or beyond
// size() and change nothing then; insertItems, removeItem and removeItems trust their arguments.
class ListModelKeyFrame : public ListModelAbstract<KeyFrame_s> {
public:
    ~ListModelKeyFrame() override;

    unsigned long size() const override;
    std::string displayString(unsigned long index) const override;
    std::string emptyModelMessage() const override;
    const KeyFrame_s& data(unsigned long index) const override;
    void setData(unsigned long index, const KeyFrame_s& keyFrame) override;
    void insertItem(unsigned long index, const KeyFrame_s& keyFrame) override;

    // An index beyond the end appends. The indices reported to observers begin at index - 1 then,
    // which is the right one only for size() + 1, the position that callers append with.
    void insertItems(unsigned long index, const std::vector<KeyFrame_s>& keyFrames) override;

    void removeItem(unsigned long index) override;
    void removeItems(unsigned long first, unsigned long count) override;
    void rebuildModel() override;

    const std::string& name(unsigned long index) const;
    double solutionTime(unsigned long index) const;
    unsigned long frameCount(unsigned long index) const;

    void setName(unsigned long index, const std::string& name);

    // These three tell no observer, since a list shows nothing of what they change.
    void setSolutionTime(unsigned long index, double solutionTime);
    void setFrameCount(unsigned long index, unsigned long frameCount);
    // Also takes the host's current solution time.
    void update(unsigned long index, const View& view);

    const std::vector<KeyFrame_s>& dataList() const;

    // Replaces all key frames. With nobody observing, the report of it stays pending and single
    // changes are not reported until it has been delivered.
    void setDataList(const std::vector<KeyFrame_s>& keyFrames);

private:
    std::vector<KeyFrame_s> m_keyFrames;
};

// Spreads the solution times of the host's data set linearly over the frames of the flight, from
// the first key frame to the last. Observers are not told. A single key frame gets a time that is
// not a number, as there is nothing to spread over.
void RedistributeSolutionTimes(ListModelKeyFrame& model);

} // namespace corvane::corutiltools
