#include "host/scene/annotations/FlatQuads.h"

#include <vtkPointData.h>

#include <array>

namespace corvane::scene {

FlatQuads::FlatQuads() {
    m_colors->SetNumberOfComponents(3);
    m_data->SetPoints(m_points);
    m_data->SetPolys(m_cells);
    m_data->GetPointData()->SetScalars(m_colors);
    m_mapper->SetInputData(m_data);
    m_actor->SetMapper(m_mapper);
}

void FlatQuads::clear() {
    m_points->Reset();
    m_cells->Reset();
    m_colors->Reset();
}

void FlatQuads::add(double left, double bottom, double right, double top,
                    const host::Color& color) {
    const std::array<vtkIdType, 4> corners{
        m_points->InsertNextPoint(left, bottom, 0.0), m_points->InsertNextPoint(right, bottom, 0.0),
        m_points->InsertNextPoint(right, top, 0.0), m_points->InsertNextPoint(left, top, 0.0)};
    m_cells->InsertNextCell(4, corners.data());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        m_colors->InsertNextTuple3(255.0 * color.red, 255.0 * color.green, 255.0 * color.blue);
    }
}

void FlatQuads::finish() {
    m_points->Modified();
    m_cells->Modified();
    m_colors->Modified();
    m_data->Modified();
}

} // namespace corvane::scene
