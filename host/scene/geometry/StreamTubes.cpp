#include "host/scene/geometry/StreamTubes.h"

#include <vtkNew.h>
#include <vtkTubeFilter.h>

namespace corvane::scene {

vtkSmartPointer<vtkPolyData> tubesAround(vtkPolyData& traces, double radius) {
    constexpr int sides = 12;
    const vtkNew<vtkTubeFilter> tubes;
    tubes->SetInputData(&traces);
    tubes->SetRadius(radius);
    tubes->SetNumberOfSides(sides);
    tubes->CappingOn();
    tubes->Update();
    return tubes->GetOutput();
}

} // namespace corvane::scene
