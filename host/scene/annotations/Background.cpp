#include "host/scene/annotations/Background.h"

namespace corvane::scene {

using host::Color;

namespace {

Color mix(const Color& a, const Color& b, double partOfB) {
    const double partOfA = 1.0 - partOfB;
    return {partOfA * a.red + partOfB * b.red, partOfA * a.green + partOfB * b.green,
            partOfA * a.blue + partOfB * b.blue};
}

bool isLight(const Color& color) {
    return 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue > 0.45;
}

constexpr Color nearlyBlack{0.08, 0.08, 0.09};
constexpr Color white{1.0, 1.0, 1.0};
constexpr Color haze{0.55, 0.64, 0.75};

} // namespace

void setBackground(vtkRenderer& renderer, const Color& color, const FrameArea& area) {
    const Color highest = mix(color, haze, isLight(color) ? 0.35 : 0.12);
    const auto colorAt = [&](int y) {
        return mix(color, highest, static_cast<double>(y - area.full.y) / area.full.height);
    };
    const Color bottom = colorAt(area.visible.y);
    const Color top = colorAt(area.visible.y + area.visible.height);
    renderer.SetBackground(bottom.red, bottom.green, bottom.blue);
    renderer.SetBackground2(top.red, top.green, top.blue);
    renderer.GradientBackgroundOn();
}

Color textColorOn(const Color& background) {
    return isLight(background) ? nearlyBlack : white;
}

Color lineColorOn(const Color& background) {
    return mix(textColorOn(background), background, 0.45);
}

} // namespace corvane::scene
