// Files written by VTK's own writers.
#include "tests/unit/host/scene/MeshFiles.h"

#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkGenericDataObjectWriter.h>
#include <vtkNew.h>
#include <vtkOBJWriter.h>
#include <vtkPLYWriter.h>
#include <vtkSTLWriter.h>
#include <vtkXMLImageDataWriter.h>
#include <vtkXMLMultiBlockDataWriter.h>
#include <vtkXMLPolyDataWriter.h>
#include <vtkXMLRectilinearGridWriter.h>
#include <vtkXMLStructuredGridWriter.h>
#include <vtkXMLUnstructuredGridWriter.h>

#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace corvane::test {

namespace {

using Write = void (*)(const std::string&, vtkDataObject*);

template <class Writer>
void writeWith(const std::string& path, vtkDataObject* object) {
    const vtkNew<Writer> writer;
    writer->SetFileName(path.c_str());
    writer->SetInputDataObject(object);
    if (writer->Write() == 0) {
        throw std::runtime_error("cannot write " + path);
    }
}

/// A parallel file of one piece: VTK's own writer would need its parallel libraries.
void writeParallel(const std::string& path, vtkDataObject* object) {
    writeWith<vtkXMLUnstructuredGridWriter>(path + ".vtu", object);
    std::ofstream(path) << R"(<VTKFile type="PUnstructuredGrid" version="0.1">
<PUnstructuredGrid GhostLevel="0">
<PPointData><PDataArray type="Float64" Name="T"/>
<PDataArray type="Float64" Name="V" NumberOfComponents="3"/></PPointData>
<PCellData><PDataArray type="Float64" Name="C"/></PCellData>
<PPoints><PDataArray type="Float64" NumberOfComponents="3"/></PPoints>
<Piece Source=")" << std::filesystem::path(path).filename().string()
                        << R"(.vtu"/>
</PUnstructuredGrid></VTKFile>)";
}

const std::map<std::string, Write>& writers() {
    static const std::map<std::string, Write> table{
        {".vtu", writeWith<vtkXMLUnstructuredGridWriter>},
        {".vtp", writeWith<vtkXMLPolyDataWriter>},
        {".vti", writeWith<vtkXMLImageDataWriter>},
        {".vtr", writeWith<vtkXMLRectilinearGridWriter>},
        {".vts", writeWith<vtkXMLStructuredGridWriter>},
        {".vtm", writeWith<vtkXMLMultiBlockDataWriter>},
        {".pvtu", writeParallel},
        {".vtk", writeWith<vtkGenericDataObjectWriter>},
        {".stl", writeWith<vtkSTLWriter>},
        {".ply", writeWith<vtkPLYWriter>},
        {".obj", writeWith<vtkOBJWriter>},
    };
    return table;
}

} // namespace

std::string writeMesh(const TempFolder& folder, const std::string& name, vtkDataObject* object) {
    const std::string path = folder.file(name);
    writers().at(std::filesystem::path(name).extension().string())(path, object);
    return path;
}

std::string writePvd(const TempFolder& folder, const std::string& name,
                     const std::vector<PvdEntry>& entries) {
    std::ostringstream text;
    text
        << "<?xml version=\"1.0\"?>\n<VTKFile type=\"Collection\" version=\"0.1\">\n<Collection>\n";
    for (const PvdEntry& entry : entries) {
        text << "<DataSet timestep=\"" << entry.time << "\" part=\"" << entry.part << "\" name=\""
             << entry.name << "\" file=\"" << entry.file << "\"/>\n";
    }
    text << "</Collection>\n</VTKFile>\n";
    return folder.write(name, text.str());
}

std::string writeSeries(const TempFolder& folder, int steps) {
    writeMesh(folder, "body.vtp", sampleCube({0.5, 0.5, 0.5}, 0.2));
    std::vector<PvdEntry> entries;
    for (int step = 0; step < steps; ++step) {
        const std::string name = "flow_" + std::to_string(step) + ".vtu";
        writeMesh(folder, name, sampleGrid(step));
        entries.push_back({static_cast<double>(step), 0, name, "flow"});
        entries.push_back({static_cast<double>(step), 1, "body.vtp", "body"});
    }
    return writePvd(folder, "series.pvd", entries);
}

} // namespace corvane::test
