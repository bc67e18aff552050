// The sample as EnSight cases.
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkEnSightWriter.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkUnstructuredGrid.h>

#include <fstream>
#include <functional>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace corvane::test {

namespace fs = std::filesystem;

namespace {

std::string number(double value) {
    std::ostringstream stream;
    stream << std::scientific << std::setprecision(5) << std::setw(12) << value << "\n";
    return stream.str();
}

std::string label(std::size_t value) {
    std::ostringstream stream;
    stream << std::setw(10) << value;
    return stream.str();
}

std::string partHeader(std::size_t part) {
    return "part\n" + label(part) + "\n";
}

std::string atPoints(const std::function<double(const host::Vec3&)>& value) {
    std::string text;
    for (const host::Vec3& point : boxPoints()) {
        text += number(value(point));
    }
    return text;
}

template <class Cells>
std::string geometryOf(std::size_t part, const std::string& name, const std::string& element,
                       const Cells& cells) {
    std::string text = partHeader(part) + name + "\ncoordinates\n" + label(boxPoints().size()) +
                       "\n" + atPoints([](const host::Vec3& p) { return p.x; }) +
                       atPoints([](const host::Vec3& p) { return p.y; }) +
                       atPoints([](const host::Vec3& p) { return p.z; }) + element + "\n" +
                       label(cells.size()) + "\n";
    for (const auto& cell : cells) {
        for (const int point : cell) {
            text += label(static_cast<std::size_t>(point) + 1);
        }
        text += "\n";
    }
    return text;
}

std::vector<std::array<int, 4>> squaresAtInlet() {
    std::vector<std::array<int, 4>> squares;
    for (const auto& cell : boxCells()) {
        if (boxPoints()[static_cast<std::size_t>(cell[0])].x == 0.0) {
            squares.push_back({cell[0], cell[4], cell[7], cell[3]});
        }
    }
    return squares;
}

void writeStep(const fs::path& folder, std::size_t step) {
    const double time = sampleTimes.at(step);
    const std::string zero = atPoints([](const host::Vec3&) { return 0.0; });
    const std::string x = atPoints([](const host::Vec3& p) { return p.x; });
    std::string p = "p\n";
    std::string u = "U\n";
    for (const std::size_t part : {1U, 2U}) {
        p += partHeader(part) + "coordinates\n" +
             atPoints([time](const host::Vec3& at) { return samplePressure(at.x, time); });
        u += partHeader(part) + "coordinates\n" + x + zero + zero;
    }
    std::string q = "q\n" + partHeader(1) + "hexa8\n";
    for (std::size_t cell = 0; cell < boxCells().size(); ++cell) {
        q += number(static_cast<double>(cell) + time);
    }

    const std::string suffix = std::to_string(step);
    std::ofstream(folder / ("box.p." + suffix)) << p;
    std::ofstream(folder / ("box.U." + suffix)) << u;
    std::ofstream(folder / ("box.q." + suffix)) << q;
}

vtkSmartPointer<vtkUnstructuredGrid> gridAt(double time) {
    const vtkNew<vtkPoints> points;
    const vtkNew<vtkFloatArray> p;
    const vtkNew<vtkFloatArray> u;
    p->SetName("p");
    u->SetName("U");
    u->SetNumberOfComponents(3);
    for (const host::Vec3& point : boxPoints()) {
        points->InsertNextPoint(point.x, point.y, point.z);
        p->InsertNextValue(static_cast<float>(samplePressure(point.x, time)));
        u->InsertNextTuple3(point.x, 0.0, 0.0);
    }
    const vtkNew<vtkFloatArray> q;
    const vtkNew<vtkIntArray> part;
    q->SetName("q");
    part->SetName("BlockId"); // what the writer divides by
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    for (const auto& cell : boxCells()) {
        std::array<vtkIdType, 8> ids{};
        std::copy(cell.begin(), cell.end(), ids.begin());
        const auto index = grid->InsertNextCell(VTK_HEXAHEDRON, 8, ids.data());
        q->InsertNextValue(static_cast<float>(static_cast<double>(index) + time));
        part->InsertNextValue(index < 4 ? 1 : 2);
    }
    grid->GetPointData()->AddArray(p);
    grid->GetPointData()->AddArray(u);
    grid->GetCellData()->AddArray(q);
    grid->GetCellData()->AddArray(part);
    return grid;
}

} // namespace

std::string writeEnSightBox(const fs::path& folder) {
    std::ofstream(folder / "box.geo") << "the sample\nas text\nnode id assign\nelement id assign\n"
                                      << geometryOf(1, "fluid", "hexa8", boxCells())
                                      << geometryOf(2, "inlet", "quad4", squaresAtInlet());
    for (std::size_t step = 0; step < sampleTimes.size(); ++step) {
        writeStep(folder, step);
    }
    std::ofstream text(folder / "box.case");
    text << "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: box.geo\n\nVARIABLE\n"
            "scalar per node: 1 p box.p.*\nvector per node: 1 U box.U.*\n"
            "scalar per element: 1 q box.q.*\n\nTIME\ntime set: 1\nnumber of steps: "
         << sampleTimes.size() << "\nfilename start number: 0\nfilename increment: 1\ntime values:";
    for (const double time : sampleTimes) {
        text << " " << time;
    }
    text << "\n";
    return (folder / "box.case").string();
}

std::string writeBinaryEnSightBox(const fs::path& folder) {
    const vtkNew<vtkEnSightWriter> writer;
    writer->SetPath(folder.c_str());
    writer->SetBaseName("box");
    for (int step = 0; step < 3; ++step) {
        const auto grid = gridAt(step);
        writer->SetInputData(grid);
        writer->SetTimeStep(step);
        writer->Write();
    }
    // VTK's writer keeps the case file open to the end of the program.
    std::ofstream(folder / "box.0.case")
        << "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: box.0.00000.geo\n\nVARIABLE\n"
           "scalar per node: 1 p_n box.0.*****_n.p\nvector per node: 1 U_n box.0.*****_n.U\n"
           "scalar per element: 1 q_c box.0.*****_c.q\n\nTIME\ntime set: 1\n"
           "number of steps: 3\nfilename start number: 00000\nfilename increment: 00001\n"
           "time values:\n0.000000 1.000000 2.000000\n";
    return (folder / "box.0.case").string();
}

} // namespace corvane::test
