#include "host/scene/formats/ParallelXmlCheck.h"

#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkSmartPointer.h>
#include <vtkXMLDataElement.h>
#include <vtkXMLUtilities.h>

#include <array>
#include <fstream>
#include <string_view>

namespace corvane::scene {

namespace {

/// Looks at the start only, since files that are not parallel may be large.
bool isParallelWithPoints(const std::string& path) {
    std::array<char, 1024> bytes{};
    std::ifstream stream(path, std::ios::binary);
    stream.read(bytes.data(), bytes.size());
    const std::string_view start(bytes.data(), static_cast<std::size_t>(stream.gcount()));
    for (const char* const kind : {"PUnstructuredGrid", "PPolyData", "PStructuredGrid"}) {
        if (start.find(kind) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

} // namespace

void checkParallelXml(const std::string& path) {
    if (!isParallelWithPoints(path)) {
        return;
    }
    const VtkMessages messages;
    const auto root = vtkSmartPointer<vtkXMLDataElement>::Take(
        vtkXMLUtilities::ReadElementFromFile(path.c_str()));
    vtkXMLDataElement* const points =
        root == nullptr ? nullptr : root->LookupElementWithName("PPoints");
    if (points == nullptr) {
        return;
    }
    for (int i = 0; i < points->GetNumberOfNestedElements(); ++i) {
        int components = 0;
        points->GetNestedElement(i)->GetScalarAttribute("NumberOfComponents", components);
        if (components != 3) {
            throw ReadFailure("it is damaged: its points have not three coordinates");
        }
    }
}

} // namespace corvane::scene
