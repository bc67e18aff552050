// Variables that not all times have.
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/formats/FormatTest.h"

#include <vtkPointData.h>

namespace corvane::test {

class MissingVariablesTest : public FormatTest {
protected:
    /// "T" at time 0 alone, "V" at time 1 alone.
    std::string writeMixed() const {
        const auto first = sampleGrid();
        first->GetPointData()->RemoveArray("V");
        const auto second = sampleGrid();
        second->GetPointData()->RemoveArray("T");
        writeMesh(folder, "first.vtu", first);
        writeMesh(folder, "second.vtu", second);
        return writePvd(folder, "mixed.pvd", {{0.0, 0, "first.vtu"}, {1.0, 0, "second.vtu"}});
    }

    host::Frame& addMixed(const std::string& variable) {
        host::Frame& frame = addPlainFrame(reader.read({writeMixed()}));
        fit(frame.view, frame.data()->bounds, frame.placement.aspect());
        frame.style.contour.variable = variable;
        frame.style.contour.automaticRange = true;
        return frame;
    }

    host::Picture drawAt(host::Frame& frame, double time) {
        frame.solutionTime = time;
        return draw(160, 90);
    }
};

TEST_F(MissingVariablesTest, bothAreKnown) {
    const auto data = reader.read({writeMixed()});
    EXPECT_NE(data->findVariable("T"), nullptr);
    EXPECT_NE(data->findVector("V"), nullptr);
}

TEST_F(MissingVariablesTest, coloursFallBackToPlainOnes) {
    for (const auto& [variable, timeWithIt] : {std::pair{"T", 0.0}, std::pair{"V", 1.0}}) {
        host::Frame& frame = addMixed(variable);
        host::SurfaceStyle& surface = frame.style.surfaces.front();
        surface.show = true;
        surface.useContour = true;
        EXPECT_GT(colouredPixels(drawAt(frame, timeWithIt)), 500) << variable;
        const auto plain = drawAt(frame, 1.0 - timeWithIt);
        EXPECT_EQ(colouredPixels(plain), 0) << variable;
        EXPECT_GT(drawnPixels(plain), 500) << variable;
        page.deleteFrame(frame.id());
    }
}

TEST_F(MissingVariablesTest, slicesFallBackToPlainOnes) {
    host::Frame& frame = addMixed("T");
    host::SliceStyle& slice = frame.style.slices.front();
    slice.show = true;
    slice.axis = 3;
    slice.position = 0.5;
    EXPECT_GT(colouredPixels(drawAt(frame, 0.0)), 500);
    const auto plain = drawAt(frame, 1.0);
    EXPECT_EQ(colouredPixels(plain), 0);
    EXPECT_GT(drawnPixels(plain), 500);
}

TEST_F(MissingVariablesTest, isosurfacesAreThereWhenTheirVariableIs) {
    host::Frame& frame = addMixed("");
    frame.view.psi = 60.0; // the surface is a plane along z
    frame.view.theta = 30.0;
    fit(frame.view, frame.data()->bounds, frame.placement.aspect());
    host::IsoSurfaceStyle& surface = frame.style.isoSurfaces.front();
    surface.show = true;
    surface.variable = "T";
    const host::Variable& range = *frame.data()->findVariable("T");
    surface.value = 0.5 * (range.minimum + range.maximum);
    EXPECT_GT(drawnPixels(drawAt(frame, 0.0)), 500);
    EXPECT_EQ(drawnPixels(drawAt(frame, 1.0)), 0);
    EXPECT_GT(drawnPixels(drawAt(frame, 0.0)), 500);
}

} // namespace corvane::test
