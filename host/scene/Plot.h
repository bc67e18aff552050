// One plot in one block: polygons, their colours and their material.
#pragma once

#include "host/core/FrameStyle.h"
#include "host/scene/ContourColors.h"
#include "host/scene/Geometry.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>

#include <functional>
#include <optional>

namespace corvane::scene {

/// How the polygons of a plot look.
struct Look {
    bool useContour = false;
    host::Color color;
    double opacity = 1.0;
    bool showMesh = false;
    bool isShaded = true; ///< otherwise colours are those of the legend from wherever one looks
};

/// Keeps what it was built from, and does only what a change asks for.
class Plot {
public:
    using GeometrySource = std::function<vtkSmartPointer<vtkPolyData>(const Recipe&)>;

    Plot();

    /// Calls source only when the recipe is another one than before.
    void setGeometry(const Recipe& recipe, const GeometrySource& source);
    void setLook(const Look& look, const ContourColors& colors, const host::LightStyle& light);

    vtkActor* actor() const { return m_actor; }
    bool isEmpty() const;

private:
    void setContour(const ContourColors& colors);

    std::optional<Recipe> m_recipe;
    vtkSmartPointer<vtkPolyData> m_geometry;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;
};

} // namespace corvane::scene
