// Collects what VTK would print.
#include "host/scene/VtkMessages.h"

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
        if (t_innermost != nullptr)
            t_innermost->addError(text);
    }
    void DisplayWarningText(const char* /*text*/) override {}
    void DisplayGenericWarningText(const char* /*text*/) override {}
    void DisplayDebugText(const char* /*text*/) override {}
};

vtkStandardNewMacro(CollectingOutputWindow);

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
    if (m_errors.empty())
        return {};
    std::string text = m_errors.front();
    // "ERROR: In FILE, line N\nvtkClass (0x1234): the message\n\n"
    const std::string endOfDecoration = "): ";
    if (const auto end = text.find(endOfDecoration); end != std::string::npos)
        text.erase(0, end + endOfDecoration.size());
    std::replace(text.begin(), text.end(), '\n', ' ');
    const auto last = text.find_last_not_of(" .");
    return last == std::string::npos ? std::string() : text.substr(0, last + 1);
}

} // namespace corvane::scene
