#include "host/scene/formats/ply/PlyFile.h"

#include "host/scene/formats/ply/PlyHeader.h"
#include "host/scene/formats/ply/PlyValues.h"
#include "host/scene/mesh/MeshParts.h"
#include "host/scene/mesh/ReadError.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <array>
#include <fstream>

namespace corvane::scene {

namespace {

using Element = PlyHeader::Element;
using Property = PlyHeader::Property;

/// Builds the surface while reading the values.
class PlySurface {
public:
    PlySurface(std::istream& stream, const PlyHeader& header) : m_values(stream, header.format) {
        m_surface->SetPoints(vtkSmartPointer<vtkPoints>::New());
        m_surface->SetPolys(vtkSmartPointer<vtkCellArray>::New());
        for (const Element& element : header.elements) {
            read(element);
        }
    }

    vtkSmartPointer<vtkPolyData> surface() const { return m_surface; }

private:
    void read(const Element& element) {
        if (element.name == "vertex") {
            readPoints(element);
        } else {
            readLists(element, element.name == "face");
        }
    }

    void readPoints(const Element& element) {
        std::array<double, 3> point{};
        std::vector<Target> targets;
        for (const Property& property : element.properties) {
            targets.push_back(targetOf(property, point));
        }
        for (long i = 0; i < element.count; ++i) {
            for (std::size_t p = 0; p < targets.size(); ++p) {
                readPointValue(element.properties[p], targets[p]);
            }
            m_surface->GetPoints()->InsertNextPoint(point.data());
        }
    }

    /// Where a property of a point is stored.
    struct Target {
        double* coordinate = nullptr;
        vtkSmartPointer<vtkFloatArray> array;
    };

    Target targetOf(const Property& property, std::array<double, 3>& point) {
        for (std::size_t c = 0; c < 3; ++c) {
            if (property.name == std::string(1, "xyz"[c])) {
                return {&point[c], nullptr};
            }
        }
        if (property.isList) {
            return {};
        }
        const auto array = vtkSmartPointer<vtkFloatArray>::New();
        array->SetName(property.name.c_str());
        m_surface->GetPointData()->AddArray(array);
        return {nullptr, array};
    }

    void readPointValue(const Property& property, const Target& target) {
        if (property.isList) {
            readList(property);
            return;
        }
        const double value = m_values.next(property.type);
        if (target.coordinate != nullptr) {
            *target.coordinate = value;
        } else {
            target.array->InsertNextValue(static_cast<float>(value));
        }
    }

    void readLists(const Element& element, bool areFaces) {
        for (long i = 0; i < element.count; ++i) {
            for (const Property& property : element.properties) {
                if (!property.isList) {
                    m_values.next(property.type);
                    continue;
                }
                const auto list = readList(property);
                const bool isFace = areFaces && (property.name == "vertex_indices" ||
                                                 property.name == "vertex_index");
                if (isFace && list.size() >= 3) {
                    m_surface->GetPolys()->InsertNextCell(static_cast<vtkIdType>(list.size()),
                                                          list.data());
                }
            }
        }
    }

    std::vector<vtkIdType> readList(const Property& property) {
        std::vector<vtkIdType> list;
        for (double left = m_values.next(property.countType); left >= 1.0; left -= 1.0) {
            list.push_back(static_cast<vtkIdType>(m_values.next(property.type)));
        }
        return list;
    }

    PlyValues m_values;
    vtkSmartPointer<vtkPolyData> m_surface = vtkSmartPointer<vtkPolyData>::New();
};

} // namespace

std::vector<MeshPart> PlyFile::readParts(int /*step*/) const {
    checkReadable(path());
    std::ifstream stream(path(), std::ios::binary);
    const PlyHeader header = readPlyHeader(stream);
    return meshParts(PlySurface(stream, header).surface());
}

} // namespace corvane::scene
