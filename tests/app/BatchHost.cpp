// The host without a window, in this process, with the sample data and the add-on loaded.
#include "tests/app/BatchHost.h"

#include "host/core/session/AddOnLoader.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/Folders.h"

namespace corvane::test {

BatchHost::BatchHost(int pictureWidth, int pictureHeight)
    : width(pictureWidth),
      height(pictureHeight),
      status(log, false, [this] { return movies.wantsStop(); }),
      program({renderer, reader, movies, status, prompts, pictures}) {
    program.session().silentPage().workArea = {width, height, width / 8.0};
    host::loadAddOn(program.session(), builtAddOn());
    program.session().openData({exampleFile("wake/wake.pvd")});
}

void BatchHost::play(const std::string& macro) {
    std::istringstream lines(macro);
    program.macros().play(lines, "test", exampleFile("wake"));
}

host::Picture BatchHost::picture() {
    return program.session().drawing().picture({ExportRegion_CurrentFrame, width, height, 1});
}

host::Picture BatchHost::pictureFrom(const host::Vec3& position, double psi, double theta,
                                     double alpha) {
    host::View3D& view = program.session().silentPage().active()->view;
    view.position = position;
    view.psi = psi;
    view.theta = theta;
    view.alpha = alpha;
    return picture();
}

} // namespace corvane::test
