// Tests that read files of one format.
#pragma once

#include "host/scene/mesh/MeshFile.h"
#include "tests/unit/host/scene/SceneTest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace corvane::test {

class FormatTest : public SceneTest {
protected:
    /// All that is read of a file at one of its steps.
    std::vector<scene::MeshPart> readStep(const std::string& file, int step) const;
    vtkSmartPointer<vtkDataSet> readPart(const std::string& file, int step,
                                         const std::string& part) const;
    /// What a user is told; empty when all steps can be read.
    std::string errorOf(const std::string& file) const;

    /// Draws the data with what is chosen for data that nobody described, at the time. Surfaces in
    /// the way of a slice are not drawn.
    host::Picture drawDefaults(const std::string& file, double time);
    /// Pixels that differ from the left edge of their row, which shows the background.
    static int drawnPixels(const host::Picture& picture);
    /// Pixels that are clearly neither white, grey nor black.
    static int colouredPixels(const host::Picture& picture);
};

std::vector<std::string> blockNames(const host::DataSet& data);
std::vector<int> blockDimensions(const host::DataSet& data);
/// Of the zones of the block, ascending.
std::vector<double> timesOfBlock(const host::DataSet& data, const std::string& block);
/// The names of arrays, points' first.
std::vector<std::string> arrayNames(vtkDataSet& mesh);
/// At a point of the mesh, or an exception: the scalar, or the first component of a vector.
double valueAt(vtkDataSet& mesh, const std::string& array, const host::Vec3& point);
double cellValue(vtkDataSet& mesh, const std::string& array, vtkIdType cell);

void cutFile(const std::filesystem::path& file, std::uintmax_t length);
void replaceFile(const std::filesystem::path& file, const std::string& content);

} // namespace corvane::test
