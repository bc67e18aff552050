#include "host/scene/geometry/StreamTraces.h"

#include "host/scene/mesh/PointValues.h"

#include <vtkBoundingBox.h>
#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkCellData.h>
#include <vtkCleanPolyData.h>
#include <vtkDataArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkStreamTracer.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane::scene {

namespace {

using Meshes = std::vector<vtkSmartPointer<vtkDataSet>>;

/// Maximum length of a trace, in diagonals of the data: a trace in a vortex would never end.
constexpr double longestTrace = 4.0;
/// Step size, in cells. A trace ends less than one step before the boundary of the data.
constexpr double step = 0.1;
constexpr int mostSteps = 20000;

Meshes meshesWith(const std::string& variable, const Meshes& meshes) {
    Meshes found;
    for (const auto& mesh : meshes) {
        if (mesh == nullptr || mesh->GetNumberOfCells() == 0) {
            continue;
        }
        const auto withValues = withAllPointValues(*mesh);
        vtkDataArray* const vectors = withValues->GetPointData()->GetArray(variable.c_str());
        if (vectors != nullptr && vectors->GetNumberOfComponents() == 3) {
            found.push_back(withValues);
        }
    }
    return found;
}

bool haveAll(const Meshes& meshes, vtkDataArray& array) {
    return std::all_of(meshes.begin(), meshes.end(), [&array](const auto& mesh) {
        vtkDataArray* const other = mesh->GetPointData()->GetArray(array.GetName());
        return other != nullptr && other->GetDataType() == array.GetDataType() &&
               other->GetNumberOfComponents() == array.GetNumberOfComponents();
    });
}

/// The tracer interpolates only arrays that all blocks have.
vtkSmartPointer<vtkMultiBlockDataSet> blocksWithCommonArrays(const Meshes& meshes) {
    const auto blocks = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    vtkPointData& first = *meshes.front()->GetPointData();
    for (const auto& mesh : meshes) {
        const auto block = vtkSmartPointer<vtkDataSet>::Take(mesh->NewInstance());
        block->CopyStructure(mesh);
        if (vtkDataArray* const ghosts = mesh->GetCellGhostArray()) {
            block->GetCellData()->AddArray(ghosts);
        }
        for (int i = 0; i < first.GetNumberOfArrays(); ++i) {
            vtkDataArray* const array = first.GetArray(i);
            if (array != nullptr && array->GetName() != nullptr && haveAll(meshes, *array)) {
                block->GetPointData()->AddArray(mesh->GetPointData()->GetArray(array->GetName()));
            }
        }
        blocks->SetBlock(blocks->GetNumberOfBlocks(), block);
    }
    return blocks;
}

double diagonalOf(const Meshes& meshes) {
    vtkBoundingBox box;
    for (const auto& mesh : meshes) {
        box.AddBounds(mesh->GetBounds());
    }
    return box.GetDiagonalLength();
}

bool isFinite(const std::array<double, 3>& point) {
    return std::all_of(point.begin(), point.end(), [](double x) { return std::isfinite(x); });
}

/// Where the flow stagnates the tracer may repeat a point, which breaks tubes.
vtkSmartPointer<vtkPolyData> withoutRepeatedPoints(vtkPolyData& traces) {
    const vtkNew<vtkCellArray> lines;
    const auto line = vtk::TakeSmartPointer(traces.GetLines()->NewIterator());
    std::vector<vtkIdType> kept;
    for (line->GoToFirstCell(); !line->IsDoneWithTraversal(); line->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* points = nullptr;
        line->GetCurrentCell(count, points);
        kept.clear();
        std::array<double, 3> last{};
        for (vtkIdType i = 0; i < count; ++i) {
            std::array<double, 3> point{};
            traces.GetPoint(points[i], point.data());
            if (!isFinite(point) || (!kept.empty() && point == last)) {
                continue;
            }
            kept.push_back(points[i]);
            last = point;
        }
        if (kept.size() > 1) {
            lines->InsertNextCell(static_cast<vtkIdType>(kept.size()), kept.data());
        }
    }
    // Cell arrays, such as the reason for termination, no longer match the lines.
    traces.GetCellData()->Initialize();
    traces.SetLines(lines);
    const vtkNew<vtkCleanPolyData> unused;
    unused->SetInputData(&traces);
    unused->PointMergingOff();
    unused->Update();
    return unused->GetOutput();
}

} // namespace

StreamRecipe streamRecipe(const host::StreamtraceStyle& style, std::vector<MeshId> meshes) {
    return {std::move(meshes), style.variable, streamSeeds(style), style.direction};
}

vtkSmartPointer<vtkPolyData> traceStreams(const StreamRecipe& recipe,
                                          const std::vector<vtkSmartPointer<vtkDataSet>>& meshes) {
    const Meshes flows = meshesWith(recipe.variable, meshes);
    const auto seeds = placeSeeds(recipe.seeds);
    if (flows.empty() || seeds->GetNumberOfPoints() == 0) {
        return vtkSmartPointer<vtkPolyData>::New();
    }
    const vtkNew<vtkStreamTracer> tracer;
    tracer->SetInputData(blocksWithCommonArrays(flows));
    tracer->SetSourceData(seeds);
    tracer->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_POINTS,
                                   recipe.variable.c_str());
    // The style has the same order as VTK, but counts from 1.
    tracer->SetIntegrationDirection(recipe.direction - 1);
    tracer->SetIntegratorTypeToRungeKutta45();
    tracer->SetIntegrationStepUnit(vtkStreamTracer::CELL_LENGTH_UNIT);
    tracer->SetInitialIntegrationStep(step);
    tracer->SetMaximumIntegrationStep(step);
    tracer->SetMaximumPropagation(longestTrace * diagonalOf(flows));
    tracer->SetMaximumNumberOfSteps(mostSteps);
    tracer->SetComputeVorticity(false);
    tracer->Update();
    return withoutRepeatedPoints(*tracer->GetOutput());
}

} // namespace corvane::scene
