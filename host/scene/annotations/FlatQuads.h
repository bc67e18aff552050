// Coloured rectangles on top of a picture.
#pragma once

#include "host/core/page/FrameStyle.h"

#include <vtkActor2D.h>
#include <vtkCellArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper2D.h>
#include <vtkUnsignedCharArray.h>

namespace corvane::scene {

/// They must not overlap, since all have the same depth. Their edges are not antialiased.
class FlatQuads {
public:
    FlatQuads();

    void clear();
    /// In pixels of the visible part of the frame.
    void add(double left, double bottom, double right, double top, const host::Color& color);
    void finish(); ///< after the last add()

    vtkActor2D* actor() const { return m_actor; }

private:
    vtkNew<vtkPoints> m_points;
    vtkNew<vtkCellArray> m_cells;
    vtkNew<vtkUnsignedCharArray> m_colors;
    vtkNew<vtkPolyData> m_data;
    vtkNew<vtkPolyDataMapper2D> m_mapper;
    vtkNew<vtkActor2D> m_actor;
};

} // namespace corvane::scene
