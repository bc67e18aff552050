// Puts the state of a page together from its text, line by line.
#include "host/core/base/HostError.h"
#include "host/core/base/QuotedWords.h"
#include "host/core/base/Text.h"
#include "host/core/page/Frame.h"
#include "host/core/page/PageStateText.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <sstream>
#include <variant>

namespace corvane::host {

namespace {

using Words = std::vector<std::string>;

[[noreturn]] void refuse(const std::string& cause) {
    throw HostError(cause);
}

template <typename Number>
Number numberIn(const std::string& text) {
    const std::optional<Number> number = parsedNumber<Number>(text);
    if (!number) {
        refuse("\"" + text + "\" is not a number that fits here.");
    }
    return *number;
}

double finiteIn(const std::string& text) {
    const double number = numberIn<double>(text);
    if (!std::isfinite(number)) {
        refuse("\"" + text + "\" is not a number that fits here.");
    }
    return number;
}

struct ValueIn {
    const std::string& text;

    StyleInput operator()(const bool*) const {
        if (text != "true" && text != "false") {
            refuse("\"" + text + "\" is neither true nor false.");
        }
        return text == "true" ? 1L : 0L;
    }
    StyleInput operator()(const int*) const { return numberIn<long>(text); }
    StyleInput operator()(const double*) const { return numberIn<double>(text); }
    StyleInput operator()(const std::string*) const { return text; }
};

class PageReader {
public:
    explicit PageReader(const DataSource& dataOf) : m_dataOf(dataOf) {}

    void take(const Words& words) {
        for (const Line& line : lines) {
            if (words.front() == line.name) {
                if (words.size() < line.fewest || words.size() > line.most) {
                    refuse("\"" + words.front() + "\" has another number of words.");
                }
                (this->*line.take)(words);
                return;
            }
        }
        refuse("\"" + words.front() + "\" is not known.");
    }

    bool isComplete() const { return m_isComplete; }
    PageState page() const { return m_page; }

private:
    struct Line {
        const char* name;
        std::size_t fewest; ///< words, the name included
        std::size_t most;
        void (PageReader::*take)(const Words& words);
    };
    static const std::array<Line, 8> lines;

    void takeWorkArea(const Words& words) {
        m_page.workArea = {numberIn<int>(words[1]), numberIn<int>(words[2]), finiteIn(words[3])};
        if (m_page.workArea.width < 0 || m_page.workArea.height < 0 ||
            !(m_page.workArea.pixelsPerInch > 0.0)) {
            refuse("The work area has no such size.");
        }
    }
    void takeFrame(const Words& words) {
        endFrame();
        const long id = numberIn<long>(words[1]);
        if (id <= 0 || findFrame(m_page, id) != nullptr) {
            refuse("The number of a frame is above zero, and its own.");
        }
        m_frame.emplace(id, Placement{});
    }
    void takePlacement(const Words& words) {
        const Placement place{finiteIn(words[1]), finiteIn(words[2]), finiteIn(words[3]),
                              finiteIn(words[4])};
        if (!(place.width > 0.0 && place.height > 0.0)) {
            refuse("A frame has an extent.");
        }
        frame().placement = place;
    }
    void takePlotType(const Words& words) {
        const int type = numberIn<int>(words[1]);
        if (type < PlotType_None || type > PlotType_Cartesian2D) {
            refuse("There is no plot type " + words[1] + ".");
        }
        frame().plotType = static_cast<PlotType_e>(type);
    }
    void takeTime(const Words& words) { frame().solutionTime = finiteIn(words[1]); }
    void takeData(const Words& words) {
        frame().attachData(m_dataOf(Words(words.begin() + 1, words.end())));
    }
    void takeValue(const Words& words) {
        const StyleLeaf* const leaf = frame().styles().find(stylePathFromString(words[1]));
        if (leaf == nullptr) {
            refuse("There is no value " + words[1] + ".");
        }
        if (!StyleTree::restore(*leaf, std::visit(ValueIn{words[2]}, leaf->target))) {
            refuse(words[1] + " cannot be \"" + words[2] + "\".");
        }
    }
    void takeEnd(const Words& words) {
        endFrame();
        m_page.active = numberIn<long>(words[1]);
        if (m_page.frames.empty() ? m_page.active != 0
                                  : findFrame(m_page, m_page.active) == nullptr) {
            refuse("There is no frame " + words[1] + " that could be active.");
        }
        m_isComplete = true;
    }

    Frame& frame() {
        if (!m_frame) {
            refuse("There is no frame yet that this could belong to.");
        }
        return *m_frame;
    }
    void endFrame() {
        if (m_isComplete) {
            refuse("Something follows the end.");
        }
        if (m_frame) {
            m_page.frames.push_back(m_frame->state());
            m_frame.reset();
        }
    }

    const DataSource& m_dataOf;
    PageState m_page;
    std::optional<Frame> m_frame; ///< the one that the lines are about
    bool m_isComplete = false;
};

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

const std::array<PageReader::Line, 8> PageReader::lines{{
    {"workarea", 4, 4, &PageReader::takeWorkArea},
    {"frame", 2, 2, &PageReader::takeFrame},
    {"placement", 5, 5, &PageReader::takePlacement},
    {"plottype", 2, 2, &PageReader::takePlotType},
    {"time", 2, 2, &PageReader::takeTime},
    {"data", 1, anyNumber, &PageReader::takeData},
    {"set", 3, 3, &PageReader::takeValue},
    {"end", 2, 2, &PageReader::takeEnd},
}};

} // namespace

PageState pageStateFromText(const std::string& text, const DataSource& dataOf) {
    std::istringstream in(text);
    PageReader reader(dataOf);
    std::string line;
    if (!std::getline(in, line) || line != pageStateHeader) {
        throw HostError("This is not the state of a page: it does not begin with \"" +
                        std::string(pageStateHeader) + "\".");
    }
    for (unsigned long number = 2; std::getline(in, line); ++number) {
        try {
            const Words words = splitWords(line);
            if (!words.empty()) {
                reader.take(words);
            }
        } catch (const HostError& error) {
            throw HostError("Line " + std::to_string(number) +
                            " of the state of a page: " + error.what());
        }
    }
    if (!reader.isComplete()) {
        throw HostError("The state of a page is cut off: its end is missing.");
    }
    return reader.page();
}

} // namespace corvane::host
