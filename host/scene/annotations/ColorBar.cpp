#include "host/scene/annotations/ColorBar.h"

#include "host/scene/annotations/Ticks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane::scene {

using host::Color;

namespace {

constexpr int maximumTicks = 9;
constexpr int stripes = 256;

// Parts of the frame's height.
constexpr double marginPart = 0.035;
constexpr double stripWidthPart = 0.028;
constexpr double stripHeightPart = 0.5;
constexpr double labelSizePart = 0.028;
constexpr double titleSizePart = 0.034;
constexpr double tickLengthPart = 0.008;
constexpr double gapPart = 0.008;
constexpr double linePart = 0.0014;

} // namespace

/// In pixels of the visible part of the frame.
struct ColorBar::Layout {
    double left, right, bottom, top; ///< of the strip
    double line;                     ///< width of lines
    double tickEnd;
    double labelLeft;
    std::vector<Tick> ticks;
    double minimum, maximum;

    double heightOf(double value) const {
        const double part = maximum > minimum ? (value - minimum) / (maximum - minimum) : 0.5;
        return bottom + part * (top - bottom);
    }
};

ColorBar::ColorBar(vtkRenderer& renderer) : m_renderer(renderer) {
    renderer.AddActor2D(m_quads.actor());
    renderer.AddActor2D(m_title.actor());
}

void ColorBar::hide() {
    m_quads.actor()->SetVisibility(0);
    m_title.hide();
    for (const auto& item : m_labels) {
        item->hide();
    }
}

void ColorBar::show(const ContourColors& colors, const std::string& title, const Color& textColor,
                    const FrameArea& area) {
    hide();
    const double height = area.full.height;
    const auto size = [&](double part) { return static_cast<int>(std::lround(part * height)); };
    TextAppearance appearance{std::max(1, size(labelSizePart)), textColor};
    appearance.vertical = TextAppearance::Align::Middle;

    Layout layout{};
    layout.minimum = colors.range().minimum;
    layout.maximum = colors.range().maximum;
    layout.ticks = roundTicks(layout.minimum, layout.maximum, maximumTicks);
    double labelWidth = 0.0;
    for (const Tick& tick : layout.ticks) {
        labelWidth = std::max(labelWidth, TextItem::widthOf(tick.label, appearance));
    }

    const double edge = area.offsetX() + area.full.width - size(marginPart);
    layout.line = std::max(1, size(linePart));
    layout.labelLeft = edge - labelWidth;
    layout.tickEnd = layout.labelLeft - size(gapPart);
    layout.right = layout.tickEnd - size(tickLengthPart);
    layout.left = layout.right - size(stripWidthPart);
    layout.bottom = area.offsetY() + size(0.5 - 0.5 * stripHeightPart);
    layout.top = layout.bottom + size(stripHeightPart);

    drawStrip(layout, colors, textColor);
    for (std::size_t i = 0; i < layout.ticks.size(); ++i) {
        label(i).show(layout.ticks[i].label, layout.labelLeft,
                      layout.heightOf(layout.ticks[i].value), appearance);
    }

    TextAppearance titleAppearance{std::max(1, size(titleSizePart)), textColor};
    const bool fits = layout.left + TextItem::widthOf(title, titleAppearance) <= edge;
    titleAppearance.horizontal = fits ? TextAppearance::Align::Low : TextAppearance::Align::High;
    m_title.show(title, fits ? layout.left : edge, layout.top + appearance.size, titleAppearance);
}

void ColorBar::drawStrip(const Layout& layout, const ContourColors& colors,
                         const Color& textColor) {
    m_quads.clear();
    const auto frame = [&](double left, double bottom, double right, double top) {
        m_quads.add(left, bottom, right, top, textColor);
    };
    const double line = layout.line;
    frame(layout.left - line, layout.bottom - line, layout.right + line, layout.bottom);
    frame(layout.left - line, layout.top, layout.right + line, layout.top + line);
    frame(layout.left - line, layout.bottom, layout.left, layout.top);
    frame(layout.right, layout.bottom, layout.right + line, layout.top);

    vtkLookupTable& table = *colors.table();
    const double step = (layout.top - layout.bottom) / stripes;
    for (int i = 0; i < stripes; ++i) {
        std::array<double, 4> rgba{};
        table.GetTableValue(i, rgba.data());
        m_quads.add(layout.left, std::round(layout.bottom + i * step), layout.right,
                    std::round(layout.bottom + (i + 1) * step), {rgba[0], rgba[1], rgba[2]});
    }
    for (const Tick& tick : layout.ticks) {
        const double bottom = std::round(layout.heightOf(tick.value) - 0.5 * layout.line);
        frame(layout.right + line, bottom, layout.tickEnd, bottom + line);
    }
    m_quads.finish();
    m_quads.actor()->SetVisibility(1);
}

TextItem& ColorBar::label(std::size_t index) {
    while (m_labels.size() <= index) {
        m_labels.push_back(std::make_unique<TextItem>());
        m_renderer.AddActor2D(m_labels.back()->actor());
    }
    return *m_labels[index];
}

} // namespace corvane::scene
