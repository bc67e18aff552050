#include "host/scene/annotations/OrientationAxis.h"

#include "host/scene/layout/CameraSetup.h"
#include "host/scene/style/Material.h"

#include <vtkArrowSource.h>
#include <vtkCamera.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>

#include <algorithm>
#include <cmath>

namespace corvane::scene {

using host::Color;
using host::Vec3;

namespace {

constexpr std::array<const char*, 3> names{"X", "Y", "Z"};
constexpr std::array<Color, 3> colors{{{0.84, 0.20, 0.18}, {0.25, 0.65, 0.25}, {0.18, 0.38, 0.85}}};
constexpr std::array<Vec3, 3> directions{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};

constexpr double sizePart = 0.17;      ///< edge of the corner, of the frame's height
constexpr double marginPart = 0.012;   ///< distance from the frame's edges, of its height
constexpr double labelSizePart = 0.15; ///< of the corner's edge
constexpr double labelDistance = 1.22; ///< from the origin; arrows have length 1
constexpr double halfExtent = 1.45;    ///< of what the corner shows

/// The source's arrow lies along x.
void turnToAxis(vtkActor& actor, int axis) {
    if (axis == 1) {
        actor.RotateZ(90.0);
    }
    if (axis == 2) {
        actor.RotateY(-90.0);
    }
}

} // namespace

OrientationAxis::OrientationAxis() {
    m_renderer->SetPreserveColorBuffer(1);
    m_renderer->SetAutomaticLightCreation(0);
    const host::LightStyle lightStyle;
    const auto light = makeLight();
    setLight(*light, lightStyle);
    m_renderer->AddLight(light);

    const vtkNew<vtkArrowSource> arrow;
    arrow->SetTipLength(0.32);
    arrow->SetTipRadius(0.12);
    arrow->SetShaftRadius(0.045);
    arrow->SetTipResolution(32);
    arrow->SetShaftResolution(32);
    arrow->Update();
    for (int axis = 0; axis < 3; ++axis) {
        const auto i = static_cast<std::size_t>(axis);
        const vtkNew<vtkPolyDataMapper> mapper;
        mapper->SetInputData(arrow->GetOutput());
        m_arrows[i]->SetMapper(mapper);
        turnToAxis(*m_arrows[i], axis);
        setColor(*m_arrows[i]->GetProperty(), colors[i]);
        setSurfaceMaterial(*m_arrows[i]->GetProperty(), lightStyle);
        m_renderer->AddActor(m_arrows[i]);
        m_renderer->AddActor2D(m_labels[i].actor());
    }
    vtkCamera& camera = *m_renderer->GetActiveCamera();
    camera.ParallelProjectionOn();
    camera.SetFocalPoint(0.0, 0.0, 0.0);
    camera.SetClippingRange(1.0, 9.0);
}

void OrientationAxis::hide() {
    m_renderer->DrawOff();
}

void OrientationAxis::show(const host::View3D& view, const Color& textColor, const FrameArea& area,
                           int pictureWidth, int pictureHeight) {
    const auto size = static_cast<int>(std::lround(sizePart * area.full.height));
    const auto margin = static_cast<int>(std::lround(marginPart * area.full.height));
    const PixelRect corner{area.full.x + margin, area.full.y + margin, size, size};
    const FrameArea shown{corner, intersection(corner, area.visible)};
    if (size < 8 || shown.visible.isEmpty()) {
        hide();
        return;
    }
    m_renderer->DrawOn();
    const PixelRect& visible = shown.visible;
    m_renderer->SetViewport(static_cast<double>(visible.x) / pictureWidth,
                            static_cast<double>(visible.y) / pictureHeight,
                            static_cast<double>(visible.x + visible.width) / pictureWidth,
                            static_cast<double>(visible.y + visible.height) / pictureHeight);

    const host::ViewBasis basis = basisOf(view);
    const Vec3 position = 5.0 * basis.toViewer;
    vtkCamera& camera = *m_renderer->GetActiveCamera();
    camera.SetPosition(position.x, position.y, position.z);
    camera.SetViewUp(basis.up.x, basis.up.y, basis.up.z);
    camera.SetParallelScale(halfExtent * visible.height / size);
    setWindowCenter(camera, shown);

    TextAppearance appearance{std::max(1, static_cast<int>(std::lround(labelSizePart * size))),
                              textColor};
    appearance.horizontal = TextAppearance::Align::Middle;
    appearance.vertical = TextAppearance::Align::Middle;
    for (std::size_t i = 0; i < 3; ++i) {
        const Vec3 place = (labelDistance / halfExtent) * directions[i];
        m_labels[i].show(names[i], shown.offsetX() + 0.5 * size * (1.0 + dot(place, basis.right)),
                         shown.offsetY() + 0.5 * size * (1.0 + dot(place, basis.up)), appearance);
    }
}

} // namespace corvane::scene
