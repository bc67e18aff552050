// The box around the data of a frame.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/core/page/Vec3.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkOutlineSource.h>
#include <vtkPolyDataMapper.h>

namespace corvane::scene {

class Outline {
public:
    Outline();

    /// lineWidth: pixels as drawn.
    void show(const host::Bounds& box, const host::Color& color, const host::LightStyle& light,
              double lineWidth);
    void hide();

    vtkActor* actor() const { return m_actor; }

private:
    vtkNew<vtkOutlineSource> m_source;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;
};

} // namespace corvane::scene
