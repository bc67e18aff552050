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

KeyFrame_s const& ListModelKeyFrame::data(unsigned long index) const {
    return m_keyFrames.at(index);
}

void ListModelKeyFrame::setData(unsigned long index, KeyFrame_s const& keyFrame) {
    m_keyFrames.at(index) = keyFrame;
    notifyOfChange({ItemsChanged, {index}});
}

void ListModelKeyFrame::insertItem(unsigned long index, KeyFrame_s const& keyFrame) {
    insertItems(index, {keyFrame});
}

void ListModelKeyFrame::insertItems(unsigned long index, std::vector<KeyFrame_s> const& keyFrames) {
    unsigned long const count = size();
    bool const beyondEnd = index > count;
    auto const position = m_keyFrames.begin() + static_cast<long>(beyondEnd ? count : index);
    m_keyFrames.insert(position, keyFrames.begin(), keyFrames.end());
    notifyOfChange({ItemsInserted, indexRange(beyondEnd ? index - 1 : index, keyFrames.size())});
}

void ListModelKeyFrame::removeItem(unsigned long index) {
    m_keyFrames.erase(m_keyFrames.begin() + static_cast<long>(index));
    notifyOfChange({ItemsRemoved, {index}});
}

void ListModelKeyFrame::removeItems(unsigned long first, unsigned long count) {
    auto const begin = m_keyFrames.begin() + static_cast<long>(first);
    m_keyFrames.erase(begin, begin + static_cast<long>(count));
    notifyOfChange({ItemsRemoved, indexRange(first, count)});
}

void ListModelKeyFrame::rebuildModel() {}

std::string const& ListModelKeyFrame::name(unsigned long index) const {
    return m_keyFrames.at(index).name;
}

double ListModelKeyFrame::solutionTime(unsigned long index) const {
    return m_keyFrames.at(index).solutionTime;
}

unsigned long ListModelKeyFrame::frameCount(unsigned long index) const {
    return m_keyFrames.at(index).frameCount;
}

void ListModelKeyFrame::setName(unsigned long index, std::string const& name) {
    m_keyFrames.at(index).name = name;
    notifyOfChange({ItemsChanged, {index}});
}

void ListModelKeyFrame::setSolutionTime(unsigned long index, double solutionTime) {
    m_keyFrames.at(index).solutionTime = solutionTime;
}

void ListModelKeyFrame::setFrameCount(unsigned long index, unsigned long frameCount) {
    m_keyFrames.at(index).frameCount = frameCount;
}

void ListModelKeyFrame::update(unsigned long index, View const& view) {
    KeyFrame_s& keyFrame = m_keyFrames.at(index);
    keyFrame.view = view;
    keyFrame.solutionTime = CorUtilSolutionTimeGetCurrent();
}

std::vector<KeyFrame_s> const& ListModelKeyFrame::dataList() const {
    return m_keyFrames;
}

void ListModelKeyFrame::setDataList(std::vector<KeyFrame_s> const& keyFrames) {
    std::vector<KeyFrame_s> copy(keyFrames);
    m_keyFrames.swap(copy);
    notifyOfReset();
}

void RedistributeSolutionTimes(ListModelKeyFrame& model) {
    double minimum = 0.0;
    double maximum = 0.0;
    GetSolutionTimeMinMax(minimum, maximum);
    if (model.size() == 0)
        return;
    unsigned long const intervals = GetTotalFrameCount(model.dataList()) - 1;
    double const step = (maximum - minimum) / static_cast<double>(intervals);
    unsigned long framesBefore = 0;
    for (unsigned long index = 0; index < model.size(); ++index) {
        model.setSolutionTime(index, minimum + static_cast<double>(framesBefore) * step);
        framesBefore += model.frameCount(index);
    }
}

} // namespace corvane::corutiltools
