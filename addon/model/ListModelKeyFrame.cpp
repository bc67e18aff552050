// The list of key frames that is shown, saved and played.
#include "addon/model/ListModelKeyFrame.h"

#include "addon/model/Utilities.h"
#include "hostapi/CorHost.h"

#include <numeric>

namespace corvane::corutiltools {

namespace {

std::vector<unsigned long> indexRange(unsigned long first, unsigned long count) {
    std::vector<unsigned long> indices(count);
    std::iota(indices.begin(), indices.end(), first);
    return indices;
}

} // namespace

ListModelKeyFrame::~ListModelKeyFrame() = default;

unsigned long ListModelKeyFrame::size() const {
    return m_keyFrames.size();
}

std::string ListModelKeyFrame::displayString(unsigned long index) const {
    return name(index);
}

std::string ListModelKeyFrame::emptyModelMessage() const {
    return "No Key Frames established.";
}

const KeyFrame_s& ListModelKeyFrame::data(unsigned long index) const {
    return m_keyFrames.at(index);
}

void ListModelKeyFrame::setData(unsigned long index, const KeyFrame_s& keyFrame) {
    m_keyFrames.at(index) = keyFrame;
    notifyOfChange({ItemsChanged, {index}});
}

void ListModelKeyFrame::insertItem(unsigned long index, const KeyFrame_s& keyFrame) {
    insertItems(index, {keyFrame});
}

void ListModelKeyFrame::insertItems(unsigned long index, const std::vector<KeyFrame_s>& keyFrames) {
    const unsigned long count = size();
    const bool beyondEnd = index > count;
    const auto position = m_keyFrames.begin() + static_cast<long>(beyondEnd ? count : index);
    m_keyFrames.insert(position, keyFrames.begin(), keyFrames.end());
    notifyOfChange({ItemsInserted, indexRange(beyondEnd ? index - 1 : index, keyFrames.size())});
}

void ListModelKeyFrame::removeItem(unsigned long index) {
    m_keyFrames.erase(m_keyFrames.begin() + static_cast<long>(index));
    notifyOfChange({ItemsRemoved, {index}});
}

void ListModelKeyFrame::removeItems(unsigned long first, unsigned long count) {
    const auto begin = m_keyFrames.begin() + static_cast<long>(first);
    m_keyFrames.erase(begin, begin + static_cast<long>(count));
    notifyOfChange({ItemsRemoved, indexRange(first, count)});
}

void ListModelKeyFrame::rebuildModel() {}

const std::string& ListModelKeyFrame::name(unsigned long index) const {
    return m_keyFrames.at(index).name;
}

double ListModelKeyFrame::solutionTime(unsigned long index) const {
    return m_keyFrames.at(index).solutionTime;
}

unsigned long ListModelKeyFrame::frameCount(unsigned long index) const {
    return m_keyFrames.at(index).frameCount;
}

void ListModelKeyFrame::setName(unsigned long index, const std::string& name) {
    m_keyFrames.at(index).name = name;
    notifyOfChange({ItemsChanged, {index}});
}

void ListModelKeyFrame::setSolutionTime(unsigned long index, double solutionTime) {
    m_keyFrames.at(index).solutionTime = solutionTime;
}

void ListModelKeyFrame::setFrameCount(unsigned long index, unsigned long frameCount) {
    m_keyFrames.at(index).frameCount = frameCount;
}

void ListModelKeyFrame::update(unsigned long index, const View& view) {
    KeyFrame_s& keyFrame = m_keyFrames.at(index);
    keyFrame.view = view;
    keyFrame.solutionTime = CorUtilSolutionTimeGetCurrent();
}

const std::vector<KeyFrame_s>& ListModelKeyFrame::dataList() const {
    return m_keyFrames;
}

void ListModelKeyFrame::setDataList(const std::vector<KeyFrame_s>& keyFrames) {
    std::vector<KeyFrame_s> copy(keyFrames);
    m_keyFrames.swap(copy);
    notifyOfReset();
}

void RedistributeSolutionTimes(ListModelKeyFrame& model) {
    double minimum = 0.0;
    double maximum = 0.0;
    GetSolutionTimeMinMax(minimum, maximum);
    if (model.size() == 0) {
        return;
    }
    const unsigned long intervals = GetTotalFrameCount(model.dataList()) - 1;
    const double step = (maximum - minimum) / static_cast<double>(intervals);
    unsigned long framesBefore = 0;
    for (unsigned long index = 0; index < model.size(); ++index) {
        model.setSolutionTime(index, minimum + static_cast<double>(framesBefore) * step);
        framesBefore += model.frameCount(index);
    }
}

} // namespace corvane::corutiltools
