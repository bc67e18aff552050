// One plot in one block: polygons and the actor that draws them.
#pragma once

#include "host/scene/Geometry.h"
#include "host/scene/Look.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>

#include <functional>
#include <optional>

namespace corvane::scene {

/// Keeps what it was built from, and does only what a change asks for.
class Plot {
public:
    using GeometrySource = std::function<vtkSmartPointer<vtkPolyData>(const Recipe&)>;

    Plot();

    /// Calls source only when the recipe is another one than before.
    void setGeometry(const Recipe& recipe, const GeometrySource& source);
    /// Lines and points are never shaded.
    void setLook(Look look, const ContourColors& colors, const host::LightStyle& light);

    vtkActor* actor() const { return m_actor; }
    bool isEmpty() const;

private:
    std::optional<Recipe> m_recipe;
    vtkSmartPointer<vtkPolyData> m_geometry;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;
};

} // namespace corvane::scene
