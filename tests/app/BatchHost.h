// The host without a window, in this process, with the sample data and the add-on loaded.
#pragma once

#include "host/app/BatchPrompts.h"
#include "host/app/TerminalStatus.h"
#include "host/core/Host.h"
#include "host/movie/LibavMovieWriters.h"
#include "host/movie/PngFiles.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "host/scene/data/SceneStatistics.h"
#include "tests/app/WatchedMovies.h"

#include <memory>
#include <sstream>
#include <string>

namespace corvane::test {

struct BatchHost {
    /// The size is that of the work area, and of pictures.
    explicit BatchHost(int width = 320, int height = 180);

    /// Runs lines of a macro. File names in it are relative to the examples.
    void play(const std::string& macro);
    /// What the page shows now.
    host::Picture picture();
    /// The same from other angles.
    host::Picture pictureFrom(const host::Vec3& position, double psi, double theta, double alpha);

    int width;
    int height;
    std::ostringstream log;
    std::shared_ptr<scene::SceneStatistics> statistics = std::make_shared<scene::SceneStatistics>();
    scene::SceneRenderer renderer{statistics};
    scene::DataReaders reader{scene::defaultMemoryBudget(), statistics};
    movie::LibavMovieWriters libav;
    WatchedMovies movies{libav};
    movie::PngFiles pictures;
    app::TerminalStatus status;
    app::BatchPrompts prompts;
    host::Host program;
};

} // namespace corvane::test
