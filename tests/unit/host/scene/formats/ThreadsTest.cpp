// Readers at work on several threads at once.
#include "tests/unit/host/scene/formats/FoamCase.h"
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include "host/scene/formats/MeshFormats.h"

#include <future>

namespace corvane::test {

class ThreadsTest : public FormatTest {};

TEST_F(ThreadsTest, eachReadsItsOwnTime) {
    struct Case {
        std::unique_ptr<scene::MeshFile> file;
        double x; ///< of the point (2, 1, 1), or of the middle of its cells
    };
    std::vector<Case> cases;
    cases.push_back({scene::openMeshFile(writeFoamBox(folder.path())), 1.5});
    cases.push_back({scene::openMeshFile(writeEnSightBox(folder.path())), 2.0});
    cases.push_back({scene::openMeshFile(writeExodusBox(folder.path())), 2.0});
    cases.push_back(
        {scene::openMeshFile(writeExodusBox(folder.path(), "box.ex2", ExodusKind::Hdf5)), 2.0});
    cases.push_back({scene::openMeshFile(writeCgnsBox(folder.path())), 2.0});

    std::vector<std::future<double>> values;
    std::vector<double> expected;
    for (int repetition = 0; repetition < 4; ++repetition) {
        for (const Case& one : cases) {
            for (int step = 1; step < 3; ++step) {
                const double time = sampleTimes.at(static_cast<std::size_t>(step));
                expected.push_back(samplePressure(one.x, time));
                values.push_back(std::async(std::launch::async, [&one, step] {
                    for (const scene::MeshPart& part : one.file->read(step)) {
                        if (arrayNames(*part.mesh).size() > 1) {
                            return valueAt(*part.mesh, "p", {2.0, 1.0, 1.0});
                        }
                    }
                    return -1.0;
                }));
            }
        }
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_NEAR(values[i].get(), expected[i], 1e-4) << i;
    }
}

} // namespace corvane::test
