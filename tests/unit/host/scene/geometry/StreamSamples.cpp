// A flow whose streamtraces are known.
#include "tests/unit/host/scene/geometry/StreamSamples.h"

#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>

namespace corvane::test {

vtkSmartPointer<vtkUnstructuredGrid> flowBox(bool atCells) {
    const auto grid = sampleGrid();
    const vtkNew<vtkDoubleArray> flow;
    flow->SetName("flow");
    flow->SetNumberOfComponents(3);
    flow->SetNumberOfTuples(atCells ? grid->GetNumberOfCells() : grid->GetNumberOfPoints());
    flow->Fill(0.0);
    flow->FillComponent(0, flowSpeed);
    if (atCells) {
        grid->GetCellData()->AddArray(flow);
    } else {
        grid->GetPointData()->AddArray(flow);
    }
    return grid;
}

scene::StreamRecipe streamRecipe(const host::Vec3& start, const host::Vec3& end, int count,
                                 int direction) {
    host::StreamtraceStyle style;
    style.variable = "flow";
    style.seedStart = start;
    style.seedEnd = end;
    style.seedCount = count;
    style.direction = direction;
    return scene::streamRecipe(style, {});
}

} // namespace corvane::test
