#include "host/scene/vtk/VtkMessages.h"

#include "host/core/base/Text.h"

#include <vtkLogger.h>
#include <vtkObjectFactory.h>
#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>

#include <algorithm>

namespace corvane::scene {

namespace {

thread_local VtkMessages* t_innermost = nullptr;

class CollectingOutputWindow : public vtkOutputWindow {
public:
    static CollectingOutputWindow* New();

    void DisplayText(const char* /*text*/) override {}
    void DisplayErrorText(const char* text) override {
        if (t_innermost != nullptr) {
            t_innermost->addError(text);
        }
    }
    void DisplayWarningText(const char* text) override {
        if (t_innermost != nullptr) {
            t_innermost->addWarning(text);
        }
    }
    void DisplayGenericWarningText(const char* text) override { DisplayWarningText(text); }
    void DisplayDebugText(const char* /*text*/) override {}
};

vtkStandardNewMacro(CollectingOutputWindow);

/// The message in "ERROR: In FILE, line N\nvtkClass (0x1234): the message\n\n", where the class may
/// be missing. Empty when the text says that something failed, but not why.
std::string withoutDecoration(std::string text) {
    if (text.find("returned failure for request") != std::string::npos) {
        return {};
    }
    const std::string endOfClass = "): ";
    if (const auto end = text.find(endOfClass); end != std::string::npos) {
        text.erase(0, end + endOfClass.size());
    } else if (const auto line = text.find('\n'); line + 1 < text.size()) {
        text.erase(0, line + 1);
    }
    std::replace(text.begin(), text.end(), '\n', ' ');
    return std::string(host::trimmedAtEnd(text, " ."));
}

void installOnce() {
    static const bool installed = [] {
        vtkLogger::SetStderrVerbosity(vtkLogger::VERBOSITY_OFF);
        vtkOutputWindow::SetInstance(vtkSmartPointer<CollectingOutputWindow>::New());
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace

VtkMessages::VtkMessages() : m_outer(t_innermost) {
    installOnce();
    t_innermost = this;
}

VtkMessages::~VtkMessages() {
    t_innermost = m_outer;
}

std::string VtkMessages::reason() const {
    for (const auto* const texts : {&m_errors, &m_warnings}) {
        for (const std::string& text : *texts) {
            if (const std::string reason = withoutDecoration(text); !reason.empty()) {
                return reason;
            }
        }
    }
    return "it is damaged, or of another kind than its name says";
}

} // namespace corvane::scene
