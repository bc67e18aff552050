#include "host/scene/formats/ensight/EnSightCase.h"

#include "host/core/base/Text.h"
#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <optional>
#include <set>
#include <sstream>

namespace corvane::scene {

namespace {

using Words = std::vector<std::string>;

/// Words that contain spaces are in double quotes.
Words wordsOf(const std::string& text) {
    std::istringstream stream(text);
    Words words;
    for (std::string word; stream >> std::quoted(word);) {
        words.push_back(word);
    }
    return words;
}

/// False, and the value stays, when the word is no number.
template <class Number>
bool parse(const std::string& word, Number& value) {
    const std::optional<Number> number = host::parsedNumber<Number>(word);
    value = number.value_or(value);
    return number.has_value();
}

/// A time set as it is in the file.
struct RawTimeSet {
    int steps = 0;
    int start = 0;
    int increment = 0;
    std::vector<int> numbers;
    std::vector<double> times;
};

class CaseParser {
public:
    void parse(std::istream& stream) {
        std::string line;
        while (std::getline(stream, line)) {
            ++m_line;
            const Words words = wordsOf(line);
            if (words.empty() || words.front().starts_with('#')) {
                continue;
            }
            if (isSection(words)) {
                m_section = words.front();
            } else {
                readLine(line);
            }
        }
        if (!m_isGold) {
            throw ReadFailure("it is no EnSight Gold case");
        }
        if (geometry.pattern.empty()) {
            throw ReadFailure("it names no geometry");
        }
    }

    EnSightFiles geometry;
    std::vector<EnSightVariable> variables;
    std::map<int, RawTimeSet> timeSets;

private:
    static bool isSection(const Words& words) {
        static const std::set<std::string> sections{"FORMAT", "GEOMETRY", "VARIABLE", "TIME",
                                                    "FILE",   "MATERIAL", "SCRIPTS"};
        return words.size() == 1 && sections.contains(words.front());
    }

    void readLine(const std::string& line) {
        const auto colon = line.find(':');
        const bool isContinued = colon == std::string::npos;
        const Words key = isContinued ? m_key : wordsOf(line.substr(0, colon));
        const Words values = wordsOf(isContinued ? line : line.substr(colon + 1));
        m_key = key;
        std::string name;
        for (const std::string& word : key) {
            name += (name.empty() ? "" : " ") + word;
        }
        if (m_section == "FORMAT") {
            m_isGold = m_isGold || (name == "type" && values == Words{"ensight", "gold"});
        } else if (m_section == "GEOMETRY") {
            readGeometry(name, values);
        } else if (m_section == "VARIABLE") {
            readVariable(isContinued ? "" : name, values);
        } else if (m_section == "TIME") {
            readTime(name, values);
        }
    }

    void readGeometry(const std::string& name, const Words& values) {
        if (name != "model") {
            return;
        }
        auto [files, words] = takeSets(values);
        if (words.size() != 1) {
            fail(words.empty() ? "names no geometry" : "describes a geometry that cannot be read");
        }
        files.pattern = words.front();
        geometry = files;
    }

    void readVariable(const std::string& kind, const Words& values) {
        if (kind == "constant per case" || kind == "constant per case file") {
            return;
        }
        std::istringstream text(kind);
        std::string what;
        std::string per;
        text >> what;
        while (text >> per && per != "per") {
        }
        std::string place;
        text >> place;
        static const std::set<std::string> known{"scalar", "vector", "tensor", "complex"};
        static const std::set<std::string> places{"node", "element", "measured"};
        auto [files, words] = takeSets(values);
        if (!known.contains(what) || !places.contains(place) || words.size() < 2) {
            fail("describes no variable");
        }
        const bool isRead = (what == "scalar" || what == "vector") && place != "measured";
        if (!isRead) {
            return;
        }
        files.pattern = words[1];
        variables.push_back({words[0], what == "vector" ? 3 : 1, place == "element", files});
    }

    /// "[time set [file set]] …"
    std::pair<EnSightFiles, Words> takeSets(Words words) const {
        EnSightFiles files;
        int set = 0;
        if (!words.empty() && scene::parse(words.front(), files.timeSet)) {
            words.erase(words.begin());
            if (!words.empty() && scene::parse(words.front(), set)) {
                files.isOneFile = true;
                words.erase(words.begin());
            }
        }
        return {files, words};
    }

    void readTime(const std::string& name, const Words& values) {
        if (name == "time set") {
            if (values.empty() || !scene::parse(values.front(), m_timeSet) || m_timeSet < 1) {
                fail("names no time set");
            }
            timeSets[m_timeSet] = {};
            return;
        }
        const auto current = timeSets.find(m_timeSet);
        if (current == timeSets.end()) {
            fail("belongs to no time set");
        }
        RawTimeSet& set = current->second;
        if (name == "number of steps") {
            set.steps = single(values);
        } else if (name == "filename start number") {
            set.start = single(values);
        } else if (name == "filename increment") {
            set.increment = single(values);
        } else if (name == "filename numbers") {
            append(set.numbers, values);
        } else if (name == "time values") {
            append(set.times, values);
        } else {
            fail("cannot be understood");
        }
    }

    int single(const Words& values) const {
        std::vector<int> numbers;
        append(numbers, values);
        if (numbers.size() != 1) {
            fail("holds no number");
        }
        return numbers.front();
    }

    template <class Number>
    void append(std::vector<Number>& numbers, const Words& values) const {
        for (const std::string& word : values) {
            Number number{};
            if (!scene::parse(word, number)) {
                fail("holds what is no number");
            }
            numbers.push_back(number);
        }
    }

    [[noreturn]] void fail(const std::string& what) const {
        throw ReadFailure("its line " + std::to_string(m_line) + " " + what);
    }

    int m_line = 0;
    std::string m_section;
    Words m_key; ///< of the previous line, for lists that continue
    int m_timeSet = 0;
    bool m_isGold = false;
};

EnSightTimeSet timeSetOf(int name, const RawTimeSet& raw) {
    const auto steps = static_cast<std::size_t>(std::max(0, raw.steps));
    const auto isFinite = [](double time) { return std::isfinite(time); };
    if (steps == 0 || raw.times.size() != steps ||
        !std::all_of(raw.times.begin(), raw.times.end(), isFinite) ||
        (!raw.numbers.empty() && raw.numbers.size() != steps)) {
        throw ReadFailure("its time set " + std::to_string(name) +
                          " does not have as many times as steps");
    }
    EnSightTimeSet set{raw.times, raw.numbers};
    for (long long step = 0; set.numbers.size() < steps; ++step) {
        set.numbers.push_back(static_cast<int>(raw.start + step * raw.increment));
    }
    return set;
}

std::string withNumber(const std::string& pattern, int number) {
    const auto first = pattern.find('*');
    if (first == std::string::npos) {
        return pattern;
    }
    const auto end = std::min(pattern.find_first_not_of('*', first), pattern.size());
    std::ostringstream digits;
    digits << std::setfill('0') << std::setw(static_cast<int>(end - first)) << number;
    return pattern.substr(0, first) + digits.str() + pattern.substr(end);
}

} // namespace

EnSightCase::EnSightCase(const std::string& path) : m_path(path) {
    CaseParser parser;
    std::ifstream stream(path);
    parser.parse(stream);
    for (const auto& [name, raw] : parser.timeSets) {
        m_timeSets[name] = timeSetOf(name, raw);
    }
    m_geometry = parser.geometry;
    m_variables = parser.variables;

    std::vector<EnSightFiles*> all{&m_geometry};
    for (EnSightVariable& variable : m_variables) {
        all.push_back(&variable.files);
    }
    std::set<double> times;
    for (EnSightFiles* const files : all) {
        // Some programs leave out the time set if it is the only one.
        if (files->timeSet == 0 && files->pattern.find('*') != std::string::npos) {
            files->timeSet = 1;
        }
        if (files->timeSet == 0) {
            continue;
        }
        const auto set = m_timeSets.find(files->timeSet);
        if (set == m_timeSets.end()) {
            throw ReadFailure("it has no time set " + std::to_string(files->timeSet));
        }
        times.insert(set->second.times.begin(), set->second.times.end());
    }
    m_times.assign(times.begin(), times.end());
}

EnSightCase::Place EnSightCase::placeOf(const EnSightFiles& files, double time) const {
    const auto folder = std::filesystem::path(m_path).parent_path();
    if (files.timeSet == 0) {
        return {(folder / files.pattern).string(), 0};
    }
    const EnSightTimeSet& set = m_timeSets.at(files.timeSet);
    std::size_t step = 0;
    for (std::size_t i = 1; i < set.times.size(); ++i) {
        if (set.times[i] <= time && (set.times[i] >= set.times[step] || set.times[step] > time)) {
            step = i;
        }
    }
    const std::string file = withNumber(files.pattern, set.numbers[step]);
    return {(folder / file).string(), files.isOneFile ? static_cast<int>(step) : 0};
}

} // namespace corvane::scene
