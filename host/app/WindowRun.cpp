#include "host/app/WindowRun.h"

#include "host/app/AddOnLibraries.h"
#include "host/app/Inputs.h"
#include "host/app/MemoryLimits.h"
#include "host/app/Messages.h"
#include "host/app/Signals.h"
#include "host/app/TraceFile.h"
#include "host/core/macro/MacroFile.h"
#include "host/gui/base/Icons.h"
#include "host/gui/base/QtText.h"
#include "host/gui/desktop/WindowedHost.h"
#include "host/movie/LibavMovieWriters.h"
#include "host/movie/PngFiles.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"

#include <QApplication>
#include <QDir>
#include <QSocketNotifier>
#include <clocale>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace corvane::app {
namespace {

constexpr const char* withoutDisplay =
    "; to work without one, give --batch with --macro FILE, or --keyframes FILE --output MOVIE.";

/// The first of these settings that is made, as NAME=value; else empty.
std::string displayName() {
    for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            return std::string(name) + '=' + value;
        }
    }
    return {};
}

/// Qt aborts the process when it cannot connect to the display, after several lines about its
/// plugins. During the lifetime of this object that becomes one sentence and an exit code; other
/// messages of Qt are printed at its end.
class QtStart {
public:
    QtStart() {
        s_texts.clear();
        qInstallMessageHandler(&QtStart::handle);
    }
    ~QtStart() {
        qInstallMessageHandler(nullptr);
        for (const std::string& text : s_texts) {
            say(text);
        }
    }
    QtStart(const QtStart&) = delete;
    QtStart& operator=(const QtStart&) = delete;

private:
    static void handle(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
        if (type == QtFatalMsg) {
            say("The display for a window (" + displayName() + ") cannot be used" + withoutDisplay);
            std::_Exit(ExitUsage);
        }
        s_texts.push_back(gui::fromQt(text));
    }

    static inline std::vector<std::string> s_texts;
};

/// Relative to the program if it is installed, else in the source tree.
QString helpFolder() {
    const QDir installed(QApplication::applicationDirPath() +
                         QStringLiteral("/../share/corvane/help"));
    return installed.exists() ? installed.absolutePath() : QStringLiteral(CORVANE_HELP_FOLDER);
}

void nameProgram() {
    QApplication::setApplicationName(QStringLiteral("Corvane"));
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    QApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("corvane"));
    QApplication::setWindowIcon(gui::programIcon());
    // Qt adopts the number format of the user's locale; readers of data files need a decimal point.
    std::setlocale(LC_NUMERIC, "C");
}

class WindowRun {
public:
    explicit WindowRun(const Options& options)
        : m_options(options),
          m_renderer(nullptr, memoryForPlots(options),
                     [this](const std::string& warning) { warn(warning); }),
          m_reader(memoryForData(options)),
          m_windowedHost({.renderer = m_renderer,
                          .reader = m_reader,
                          .movies = m_movies,
                          .pictures = m_pictures,
                          .helpFolder = helpFolder()}) {}

    void start();
    /// To be called after the event loop.
    ExitCode end();

private:
    void watchSignals();
    void traceCalls();
    void openWhatWasAsked();
    void writeRecorded();
    void warn(const std::string& warning);

    const Options& m_options;
    scene::SceneRenderer m_renderer;
    scene::DataReaders m_reader;
    movie::LibavMovieWriters m_movies;
    movie::PngFiles m_pictures;
    std::unique_ptr<TraceFile> m_trace;
    gui::WindowedHost m_windowedHost;
    std::unique_ptr<QSocketNotifier> m_stopSignal;
};

void WindowRun::start() {
    watchSignals();
    traceCalls();
    loadAddOns(m_windowedHost.host().session(), m_options, say);
    if (!m_options.record.empty()) {
        host::expectWritable(m_options.record, say);
    }
    if (m_options.isSizeGiven) {
        m_windowedHost.host().macros().keepPictureSize();
    }
    m_windowedHost.window().show();
    if (m_options.isSizeGiven) {
        m_windowedHost.window().resizePicture({m_options.width, m_options.height});
    }
    // Once the event loop runs, so that message boxes can be shown.
    QMetaObject::invokeMethod(
        &m_windowedHost.window(), [this] { openWhatWasAsked(); }, Qt::QueuedConnection);
}

/// A signal ends the run without asking, since there may be no user to answer.
void WindowRun::watchSignals() {
    m_stopSignal = std::make_unique<QSocketNotifier>(stopSignalDescriptor(), QSocketNotifier::Read);
    QObject::connect(m_stopSignal.get(), &QSocketNotifier::activated, &m_windowedHost.window(),
                     [this] {
                         m_stopSignal->setEnabled(false);
                         m_windowedHost.stopWork();
                         QApplication::exit();
                     });
    m_windowedHost.host().macros().stopWhen(isStopSignalled);
    watchStopSignals();
}

ExitCode WindowRun::end() {
    if (isStopSignalled()) {
        writeRecorded();
    }
    if (m_trace) {
        m_trace->finish();
    }
    return isStopSignalled() ? ExitStopped : ExitDone;
}

void WindowRun::writeRecorded() {
    const QString recording = m_windowedHost.controller().macros().file();
    if (!recording.isEmpty()) {
        host::writeMacro(m_windowedHost.host().recorder().lines(), gui::fromQt(recording), say);
    }
}

void WindowRun::traceCalls() {
    if (!m_options.trace.empty()) {
        m_trace = std::make_unique<TraceFile>(m_options.trace, say);
        m_trace->attachTo(m_windowedHost.host().session().trace());
    }
}

void WindowRun::openWhatWasAsked() {
    gui::WindowController& controller = m_windowedHost.controller();
    if (!m_options.record.empty()) {
        controller.macros().recordTo(gui::toQt(m_options.record));
    }
    for (const auto& [name, value] : m_options.variables) {
        m_windowedHost.host().macros().variables().set(name, value);
    }
    QStringList files;
    for (const std::string& file : m_options.data) {
        files.append(gui::toQt(file));
    }
    const bool isOpen = files.isEmpty() || controller.files().openData(files);
    if (isOpen && !m_options.macro.empty()) {
        controller.macros().play(gui::toQt(m_options.macro));
    }
}

void WindowRun::warn(const std::string& warning) {
    say(warning);
    m_windowedHost.showNotice(warning);
}

} // namespace

ExitCode runWindow(const Options& options) {
    if (displayName().empty()) {
        say(std::string("There is no display for a window") + withoutDisplay);
        return ExitUsage;
    }
    std::string name = "corvane";
    char* arguments[] = {name.data(), nullptr};
    int count = 1;
    std::optional<QtStart> start(std::in_place);
    QApplication qt(count, arguments);
    start.reset();
    nameProgram();
    noteInputs(options);
    try {
        WindowRun run(options);
        run.start();
        QApplication::exec();
        return run.end();
    } catch (const std::exception& error) {
        say(host::messageOf(error));
        return ExitFailed;
    }
}

} // namespace corvane::app
