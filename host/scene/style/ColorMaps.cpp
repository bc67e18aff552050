#include "host/scene/style/ColorMaps.h"

#include "host/core/base/Text.h"

#include <vtkColorTransferFunction.h>
#include <vtkNew.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace corvane::scene {

namespace {

enum class Blend { Rgb, Lab, Diverging };

struct ColorMap {
    std::string_view name;
    Blend blend;
    std::vector<unsigned> colors; ///< 0xRRGGBB, evenly spaced
};

const std::vector<ColorMap>& colorMaps() {
    // The lightness of Viridis and Plasma rises uniformly, so that they are readable in greyscale
    // and for colour-blind people. Interpolating in Lab preserves that.
    static const std::vector<ColorMap> maps{
        {"viridis",
         Blend::Lab,
         {0x440154, 0x482878, 0x3E4A89, 0x31688E, 0x26828E, 0x1F9E89, 0x35B779, 0x6DCD59, 0xB4DE2C,
          0xFDE725}},
        {"plasma",
         Blend::Lab,
         {0x0D0887, 0x47039F, 0x7301A8, 0x9C179E, 0xBD3786, 0xD8576B, 0xED7953, 0xFA9E3B, 0xFDC926,
          0xF0F921}},
        {"coolwarm", Blend::Diverging, {0x3B4CC0, 0xB40426}},
        {"rainbow",
         Blend::Rgb,
         {0x0000FF, 0x0080FF, 0x00FFFF, 0x00FF80, 0x00FF00, 0x80FF00, 0xFFFF00, 0xFF8000,
          0xFF0000}},
        {"gray", Blend::Lab, {0x000000, 0xFFFFFF}},
    };
    return maps;
}

const ColorMap& findColorMap(const std::string& name) {
    const auto& maps = colorMaps();
    const auto found = std::find_if(maps.begin(), maps.end(), [&](const ColorMap& map) {
        return host::equalIgnoringCase(map.name, name);
    });
    return found == maps.end() ? maps.front() : *found;
}

void setBlend(vtkColorTransferFunction& function, Blend blend) {
    switch (blend) {
    case Blend::Rgb:
        function.SetColorSpaceToRGB();
        break;
    case Blend::Lab:
        function.SetColorSpaceToLab();
        break;
    case Blend::Diverging:
        function.SetColorSpaceToDiverging();
        break;
    }
}

double channel(unsigned color, unsigned shift) {
    return ((color >> shift) & 0xFFU) / 255.0;
}

} // namespace

vtkSmartPointer<vtkLookupTable> makeColorMap(const std::string& name) {
    const ColorMap& map = findColorMap(name);
    const vtkNew<vtkColorTransferFunction> function;
    setBlend(*function, map.blend);
    const double last = static_cast<double>(map.colors.size() - 1);
    for (std::size_t i = 0; i < map.colors.size(); ++i) {
        function->AddRGBPoint(static_cast<double>(i) / last, channel(map.colors[i], 16),
                              channel(map.colors[i], 8), channel(map.colors[i], 0));
    }

    constexpr int size = 256;
    const auto table = vtkSmartPointer<vtkLookupTable>::New();
    table->SetNumberOfTableValues(size);
    for (int i = 0; i < size; ++i) {
        std::array<double, 3> rgb{};
        function->GetColor(i / (size - 1.0), rgb.data());
        table->SetTableValue(i, rgb[0], rgb[1], rgb[2]);
    }
    table->SetNanColor(0.5, 0.5, 0.5, 1.0);
    table->SetTableRange(0.0, 1.0);
    return table;
}

} // namespace corvane::scene
