// One plot of one block: polygons and the actor that draws them.
#pragma once

#include "host/scene/style/PlotAppearance.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

class PlotActor {
public:
    PlotActor();

    /// Costs nothing when the polygons are the same as before.
    void setGeometry(const vtkSmartPointer<vtkPolyData>& geometry);
    /// Lines and points are never shaded.
    void setAppearance(PlotAppearance appearance, const ContourColors& colors,
                       const host::LightStyle& light);

    vtkActor* actor() const { return m_actor; }
    bool isEmpty() const;

private:
    vtkSmartPointer<vtkPolyData> m_geometry;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;
};

} // namespace corvane::scene
