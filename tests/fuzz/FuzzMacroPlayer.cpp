// Any bytes as a macro: it is played to the end or to an error that tells where and why, the host
// is left clean, and what was recorded of it leads to the same again.
#include "host/core/macro/MacroText.h"
#include "tests/fuzz/Require.h"
#include "tests/support/MemoryHost.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using corvane::fuzz::require;
using namespace corvane::host;
namespace test = corvane::test;

// Nothing can lie below a device, so that no relative name, however many folders it climbs, leads
// to a file.
const std::string folder = "/dev/null";

bool isPlain(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

// Without names that begin with a slash: those would lead out of the folder.
std::string withoutAbsoluteNames(std::string text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '/' && (at == 0 || !isPlain(text[at - 1]))) {
            text[at] = '_';
        }
    }
    return text;
}

// The macros of a run: the bytes up to a line of dashes are the first, which may include the
// others by any name that ends in their number.
class Macros {
public:
    explicit Macros(const std::string& text) {
        constexpr std::string_view separator = "\n--\n";
        std::size_t begin = 0;
        for (std::size_t end; (end = text.find(separator, begin)) != std::string::npos;
             begin = end + separator.size()) {
            m_texts.push_back(text.substr(begin, end - begin));
        }
        m_texts.push_back(text.substr(begin));
    }

    std::unique_ptr<std::istream> open(const std::string& name) {
        // Macros that include the next ones twice each take exponential time, which is no defect;
        // file systems limit names, and errors could not be told apart from those with a colon.
        constexpr int mostIncludes = 64;
        constexpr std::size_t longestName = 1000;
        const bool isName = name.size() <= longestName && name.find(':') == std::string::npos;
        if (!isName || indexOf(name) >= m_texts.size() || ++m_includes > mostIncludes) {
            throw HostError("There is no macro " + name + ".");
        }
        return std::make_unique<std::istringstream>(m_texts[indexOf(name)]);
    }

    const std::string& main() const { return m_texts.front(); }

    // The text of the macro of that name, as an error shows it.
    const std::string& textOf(const std::string& name) const {
        if (name == "main") {
            return main();
        }
        require(indexOf(name) < m_texts.size(), "an error names its file");
        return m_texts[indexOf(name)];
    }

    static std::string printable(std::string text) {
        for (char& c : text) {
            if ((static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t') || c == 0x7f) {
                c = '?';
            }
        }
        return text;
    }

private:
    static std::size_t indexOf(const std::string& name) {
        const char last = name.empty() ? '\0' : name.back();
        return last >= '0' && last <= '9' ? static_cast<std::size_t>(last - '0') : std::size_t(-1);
    }

    std::vector<std::string> m_texts;
    int m_includes = 0;
};

std::string lineOf(const std::string& text, unsigned long number) {
    std::istringstream stream(text);
    std::string line;
    for (unsigned long count = 0; count < number; ++count) {
        require(!std::getline(stream, line).fail(), "an error is in a line that there is");
    }
    if (number == 1 && line.starts_with("\xef\xbb\xbf")) {
        line.erase(0, 3);
    }
    return line.erase(0, line.find_first_not_of(" \t\r"));
}

void checkError(const MacroError& failure, const Macros& macros) {
    constexpr std::size_t fewestShown = 190; // the rest may be cut off
    const std::string error = failure.what();
    std::size_t at = std::min(error.find(':'), error.size());
    const std::string& text = macros.textOf(error.substr(0, at));
    unsigned long number = 0;
    for (++at; at < error.size() && error[at] >= '0' && error[at] <= '9'; ++at) {
        number = number * 10 + static_cast<unsigned long>(error[at] - '0');
    }
    require(error.compare(at, 2, ": ") == 0, "an error has the number of its line");
    std::string line = Macros::printable(lineOf(text, number).substr(0, fewestShown));
    line.erase(line.find_last_not_of(" ?\t") + 1); // blanks at the end are not part of the text
    require(error.compare(at + 2, line.size(), line) == 0, "an error shows its line");
    const std::size_t lineEnd = error.find('\n', at);
    require(lineEnd != std::string::npos && lineEnd + 1 < error.size(), "an error has a cause");
    require(error.size() < 8192, "an error is short");
}

// An add-on whose commands fail in all ways, or record themselves, as those of add-ons do.
void addEcho(Host& program) {
    Session& session = program.session();
    session.addOnCommands().add("Echo", [&program, &session](const std::string& command) {
        const std::string error = session.callAddOn("Echo", [&] {
            if (command.starts_with("throw")) {
                session.locks().start(nullptr);
                session.drawing().suspend();
                throw std::runtime_error(command);
            }
        });
        if (!error.empty() || command.starts_with("refuse")) {
            return std::optional<std::string>("Echo error:\n" + command);
        }
        program.recorder().recordAddOnCommand("Echo", command);
        return std::optional<std::string>();
    });
}

// A host with a frame and data, which takes a hundred times as long to make as most macros to play.
class FuzzedHost {
public:
    FuzzedHost() {
        m_host.reader().provide(test::makeVolumeData());
        addEcho(m_host.program());
        m_host.session().openData({"data"});
        m_host.program().recorder().start();
        const Frame& frame = *m_host.session().page().active();
        m_plotType = frame.plotType;
        m_view = frame.view;
        m_style = frame.style;
        m_solutionTime = frame.solutionTime;
    }

    // Frames are counted for ever, so that those of a macro cannot be taken back.
    bool canBeRenewed() {
        return std::none_of(recorded().begin(), recorded().end(),
                            [](const std::string& line) { return line.starts_with("$!FRAME"); });
    }

    void renew() {
        m_host.program().macros().variables() = {};
        m_host.session().exportSetup() = {};
        m_host.session().setStyle({"Interface", "UseDisplayLists"}, 1L);
        Frame& frame = *m_host.session().silentPage().active();
        frame.plotType = m_plotType;
        frame.view = m_view;
        frame.style = m_style;
        frame.solutionTime = m_solutionTime;
        m_host.reader().clear();
        m_host.renderer().clear();
        m_host.program().recorder().start();
    }

    // False when the macro fails.
    bool play(Macros& macros) {
        m_host.program().macros().openWith(
            [&](const std::string& name) { return macros.open(name); });
        std::istringstream text(macros.main());
        bool succeeded = true;
        try {
            m_host.program().macros().play(text, "main", folder);
        } catch (const MacroError& error) {
            checkError(error, macros);
            succeeded = false;
        }
        require(!m_host.program().macros().isPlaying(), "a macro ends");
        require(m_host.session().locks().depth() == 0, "locks are balanced");
        require(m_host.session().drawing().suspensions() == 0, "suspended drawing is balanced");
        require(!m_host.session().status().isActive(), "no display of progress is left");
        return succeeded;
    }

    const std::vector<std::string>& recorded() { return m_host.program().recorder().lines(); }

    bool showsTheSameAs(FuzzedHost& other) {
        const auto& mine = m_host.session().page().frames();
        const auto& others = other.m_host.session().page().frames();
        return std::equal(mine.begin(), mine.end(), others.begin(), others.end(),
                          [](const auto& a, const auto& b) {
                              return a->id() == b->id() && a->view == b->view &&
                                     a->style == b->style && a->placement == b->placement &&
                                     a->plotType == b->plotType &&
                                     a->solutionTime == b->solutionTime && !a->data() == !b->data();
                          });
    }

private:
    test::MemoryHost m_host{test::MemoryHost::Empty{}};
    PlotType_e m_plotType{};
    View3D m_view;
    FrameStyle m_style;
    double m_solutionTime = 0.0;
};

// What add-ons and variables put into a line may make it longer than a macro can hold.
bool fitsIntoMacro(const std::vector<std::string>& lines) {
    return std::all_of(lines.begin(), lines.end(),
                       [](const std::string& line) { return line.size() <= 1U << 20U; });
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

FuzzedHost& renewed(std::unique_ptr<FuzzedHost>& host) {
    if (host && host->canBeRenewed()) {
        host->renew();
    } else {
        host = std::make_unique<FuzzedHost>();
    }
    return *host;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static std::unique_ptr<FuzzedHost> hosts[2];
    Macros macros(withoutAbsoluteNames(std::string(reinterpret_cast<const char*>(data), size)));
    FuzzedHost& first = renewed(hosts[0]);
    first.play(macros);
    if (first.recorded().empty() || !fitsIntoMacro(first.recorded())) {
        return 0;
    }
    Macros record(joined(first.recorded()));
    FuzzedHost& second = renewed(hosts[1]);
    require(second.play(record), "what was recorded can be played");
    require(second.recorded() == first.recorded(), "what is recorded again is the same");
    require(second.showsTheSameAs(first), "a record leads to the same page");
    return 0;
}
