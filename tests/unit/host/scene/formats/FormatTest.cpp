// Tests that read files of one format.
#include "tests/unit/host/scene/formats/FormatTest.h"

#include "host/core/base/HostError.h"
#include "host/scene/formats/MeshFormats.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkPointData.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace corvane::test {

std::vector<scene::MeshPart> FormatTest::readStep(const std::string& file, int step) const {
    return scene::openMeshFile(file)->read(step);
}

vtkSmartPointer<vtkDataSet> FormatTest::readPart(const std::string& file, int step,
                                                 const std::string& part) const {
    for (const scene::MeshPart& found : readStep(file, step)) {
        if (found.name == part) {
            return found.mesh;
        }
    }
    throw std::runtime_error("no part " + part);
}

std::string FormatTest::errorOf(const std::string& file) const {
    try {
        const auto opened = scene::openMeshFile(file);
        const int steps = std::max(1, static_cast<int>(opened->times().size()));
        for (int step = 0; step < steps; ++step) {
            opened->read(step);
        }
    } catch (const host::HostError& error) {
        return error.what();
    }
    return {};
}

host::Picture FormatTest::drawDefaults(const std::string& file, double time) {
    const auto data = reader.read({file});
    host::Frame& frame = addPlainFrame(data);
    host::chooseDefaultPlots(frame);
    frame.style.annotations = {};
    frame.style.annotations.showAxis = false;
    frame.style.annotations.showOutline = false;
    frame.style.contour.showLegend = false;
    frame.style.contour.automaticRange = true;
    const bool hasSlice = frame.style.slices.front().show;
    for (host::SurfaceStyle& surface : frame.style.surfaces) {
        surface.show = surface.show && !hasSlice;
    }
    frame.solutionTime = time;
    return draw(160, 90);
}

int FormatTest::drawnPixels(const host::Picture& picture) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            count += pixelAt(picture, x, y) == pixelAt(picture, 0, y) ? 0 : 1;
        }
    }
    return count;
}

int FormatTest::colouredPixels(const host::Picture& picture) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const Rgb pixel = pixelAt(picture, x, y);
            const auto [low, high] = std::minmax({pixel.red, pixel.green, pixel.blue});
            count += high - low > 30 ? 1 : 0;
        }
    }
    return count;
}

std::vector<std::string> blockNames(const host::DataSet& data) {
    std::vector<std::string> names;
    for (const host::Block& block : data.blocks) {
        names.push_back(block.name);
    }
    return names;
}

std::vector<int> blockDimensions(const host::DataSet& data) {
    std::vector<int> dimensions;
    for (const host::Block& block : data.blocks) {
        dimensions.push_back(block.dimension);
    }
    return dimensions;
}

std::vector<double> timesOfBlock(const host::DataSet& data, const std::string& block) {
    std::vector<double> times;
    for (const host::Zone& zone : data.zones) {
        if (data.blocks.at(static_cast<std::size_t>(zone.block)).name == block) {
            times.push_back(zone.solutionTime);
        }
    }
    return times;
}

std::vector<std::string> arrayNames(vtkDataSet& mesh) {
    std::vector<std::string> names;
    for (int i = 0; i < mesh.GetPointData()->GetNumberOfArrays(); ++i) {
        names.emplace_back(mesh.GetPointData()->GetArrayName(i));
    }
    for (int i = 0; i < mesh.GetCellData()->GetNumberOfArrays(); ++i) {
        names.emplace_back(mesh.GetCellData()->GetArrayName(i));
    }
    return names;
}

double valueAt(vtkDataSet& mesh, const std::string& array, const host::Vec3& point) {
    vtkDataArray* const values = mesh.GetPointData()->GetArray(array.c_str());
    const vtkIdType id = mesh.FindPoint(point.x, point.y, point.z);
    if (values == nullptr || id < 0) {
        throw std::runtime_error("no value of " + array);
    }
    return values->GetComponent(id, 0);
}

double cellValue(vtkDataSet& mesh, const std::string& array, vtkIdType cell) {
    vtkDataArray* const values = mesh.GetCellData()->GetArray(array.c_str());
    if (values == nullptr) {
        throw std::runtime_error("no value of " + array);
    }
    return values->GetComponent(cell, 0);
}

void cutFile(const std::filesystem::path& file, std::uintmax_t length) {
    std::filesystem::resize_file(file, length);
}

void replaceFile(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace corvane::test
