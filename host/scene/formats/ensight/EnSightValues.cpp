#include "host/scene/formats/ensight/EnSightValues.h"

#include "host/scene/mesh/ReadError.h"

#include <vtkCellData.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>

#include <cmath>

namespace corvane::scene {

namespace {

class ValuesReader {
public:
    ValuesReader(EnSightInput& input, const EnSightVariable& variable, EnSightParts& parts)
        : m_input(input), m_variable(variable), m_parts(parts) {}

    void read() {
        m_input.line();
        while (hasEnSightPart(m_input)) {
            m_input.keyword();
            const int number = m_input.integer();
            const auto found = m_parts.find(number);
            if (found == m_parts.end()) {
                throw ReadFailure("has values for the part " + std::to_string(number) +
                                  ", which the geometry does not have");
            }
            if (m_variable.isOfCells) {
                readCells(found->second);
            } else {
                readPoints(*found->second.mesh);
            }
        }
    }

private:
    void readPoints(vtkDataSet& mesh) {
        const std::string kind = m_input.keyword();
        if (kind != "coordinates" && kind != "block") {
            throw ReadFailure("has values of an unknown kind");
        }
        const auto array = makeArray(mesh.GetNumberOfPoints());
        readInto(*array, 0, mesh.GetNumberOfPoints());
        mesh.GetPointData()->AddArray(array);
    }

    void readCells(EnSightPart& part) {
        const auto array = makeArray(part.mesh->GetNumberOfCells());
        array->Fill(std::nan(""));
        while (!m_input.isAtEnd()) {
            const std::string next = m_input.peekKeyword();
            if (next == "part" || next == "END TIME STEP") {
                break;
            }
            const auto cells = part.cells.find(m_input.keyword());
            if (cells == part.cells.end()) {
                throw ReadFailure("has values for cells that the geometry does not have");
            }
            if (cells->second.isGhost) {
                m_input.numbers(static_cast<std::size_t>(cells->second.count) *
                                static_cast<std::size_t>(m_variable.components));
            } else {
                readInto(*array, cells->second.first, cells->second.count);
            }
        }
        part.mesh->GetCellData()->AddArray(array);
    }

    vtkSmartPointer<vtkFloatArray> makeArray(vtkIdType count) const {
        auto array = vtkSmartPointer<vtkFloatArray>::New();
        array->SetName(m_variable.name.c_str());
        array->SetNumberOfComponents(m_variable.components);
        array->SetNumberOfTuples(count);
        return array;
    }

    void readInto(vtkFloatArray& array, vtkIdType first, vtkIdType count) {
        for (int component = 0; component < m_variable.components; ++component) {
            const auto values = m_input.numbers(static_cast<std::size_t>(count));
            for (vtkIdType i = 0; i < count; ++i) {
                array.SetTypedComponent(first + i, component, values[static_cast<std::size_t>(i)]);
            }
        }
    }

    EnSightInput& m_input;
    const EnSightVariable& m_variable;
    EnSightParts& m_parts;
};

} // namespace

void readEnSightValues(EnSightInput& input, int index, const EnSightVariable& variable,
                       EnSightParts& parts) {
    goToEnSightStep(input, index, [&] { ValuesReader(input, variable, parts).read(); });
    ValuesReader(input, variable, parts).read();
}

} // namespace corvane::scene
