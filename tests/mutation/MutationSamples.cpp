// Small sound data files of every kind that a library reads.
#include "tests/mutation/MutationSamples.h"

#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/formats/FoamCase.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtkCellArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkOBJWriter.h>
#include <vtkPLYWriter.h>
#include <vtkPolyDataWriter.h>
#include <vtkRectilinearGridWriter.h>
#include <vtkSTLWriter.h>
#include <vtkStructuredGridWriter.h>
#include <vtkStructuredPointsWriter.h>
#include <vtkUnstructuredGrid.h>
#include <vtkUnstructuredGridWriter.h>
#include <vtkXMLImageDataWriter.h>
#include <vtkXMLMultiBlockDataWriter.h>
#include <vtkXMLPolyDataWriter.h>
#include <vtkXMLRectilinearGridWriter.h>
#include <vtkXMLStructuredGridWriter.h>
#include <vtkXMLUnstructuredGridWriter.h>

#include <array>
#include <fstream>

namespace corvane::test {

namespace {

using Folder = std::filesystem::path;

/// How an XML file holds its values.
struct Storage {
    const char* name;
    int mode;
    int compressor;
    bool isEncoded; ///< as text, where it is appended
    int headerType;
};

constexpr std::array storages{
    Storage{"ascii", vtkXMLWriter::Ascii, vtkXMLWriter::NONE, false, vtkXMLWriter::UInt32},
    Storage{"base64", vtkXMLWriter::Binary, vtkXMLWriter::NONE, false, vtkXMLWriter::UInt32},
    Storage{"base64zlib", vtkXMLWriter::Binary, vtkXMLWriter::ZLIB, false, vtkXMLWriter::UInt64},
    Storage{"raw", vtkXMLWriter::Appended, vtkXMLWriter::NONE, false, vtkXMLWriter::UInt64},
    Storage{"rawzlib", vtkXMLWriter::Appended, vtkXMLWriter::ZLIB, false, vtkXMLWriter::UInt32},
    Storage{"rawlz4", vtkXMLWriter::Appended, vtkXMLWriter::LZ4, false, vtkXMLWriter::UInt64},
    Storage{"rawlzma", vtkXMLWriter::Appended, vtkXMLWriter::LZMA, false, vtkXMLWriter::UInt32},
    Storage{"encoded", vtkXMLWriter::Appended, vtkXMLWriter::NONE, true, vtkXMLWriter::UInt32},
    Storage{"encodedzlib", vtkXMLWriter::Appended, vtkXMLWriter::ZLIB, true, vtkXMLWriter::UInt64},
};

template <class Writer>
std::string write(Writer& writer, const Folder& file, vtkDataObject* object) {
    writer.SetFileName(file.c_str());
    writer.SetInputDataObject(object);
    writer.Write();
    return file.string();
}

template <class Writer>
std::string writeXml(const Folder& file, const Storage& storage, vtkDataObject* object) {
    const vtkNew<Writer> writer;
    writer->SetDataMode(storage.mode);
    writer->SetCompressorType(storage.compressor);
    writer->SetEncodeAppendedData(storage.isEncoded ? 1 : 0);
    writer->SetHeaderType(storage.headerType);
    writer->SetBlockSize(512); // several blocks in each array
    return write(*writer, file, object);
}

template <class Writer>
void addXml(std::vector<MutationSample>& samples, const std::string& extension,
            const vtkSmartPointer<vtkDataObject>& object) {
    for (const Storage& storage : storages) {
        samples.push_back({extension + "." + storage.name, [=](const Folder& folder) {
                               return writeXml<Writer>(folder / ("mesh." + extension), storage,
                                                       object);
                           }});
    }
}

template <class Writer>
void addLegacy(std::vector<MutationSample>& samples, const std::string& name,
               const vtkSmartPointer<vtkDataObject>& object) {
    for (const bool isText : {true, false}) {
        for (const int version : {vtkDataWriter::VTK_LEGACY_READER_VERSION_4_2,
                                  vtkDataWriter::VTK_LEGACY_READER_VERSION_5_1}) {
            samples.push_back(
                {"vtk." + name + (isText ? ".text" : ".binary") +
                     (version == vtkDataWriter::VTK_LEGACY_READER_VERSION_4_2 ? "42" : "51"),
                 [=](const Folder& folder) {
                     const vtkNew<Writer> writer;
                     isText ? writer->SetFileTypeToASCII() : writer->SetFileTypeToBinary();
                     writer->SetFileVersion(version);
                     return write(*writer, folder / "mesh.vtk", object);
                 }});
        }
    }
}

/// A hexahedron whose faces are told one by one.
vtkSmartPointer<vtkUnstructuredGrid> polyhedron() {
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    const vtkNew<vtkPoints> points;
    for (int i = 0; i < 8; ++i) {
        points->InsertNextPoint(i & 1, (i >> 1) & 1, i >> 2);
    }
    grid->SetPoints(points);
    const std::array<vtkIdType, 30> faces{4, 0, 2, 3, 1, 4, 4, 5, 7, 6, 4, 0, 1, 5, 4,
                                          4, 2, 6, 7, 3, 4, 0, 4, 6, 2, 4, 1, 3, 7, 5};
    grid->InsertNextCell(VTK_POLYHEDRON, 6, faces.data());
    return grid;
}

std::string writeText(const Folder& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
    return file.string();
}

std::string writeBlocks(const Folder& folder) {
    const vtkNew<vtkMultiBlockDataSet> inner;
    inner->SetBlock(0, sampleCube({0.0, 0.0, 0.0}, 1.0));
    const vtkNew<vtkMultiBlockDataSet> outer;
    outer->SetBlock(0, sampleImage());
    outer->SetBlock(1, inner);
    outer->SetBlock(2, polyhedron());
    return writeXml<vtkXMLMultiBlockDataWriter>(folder / "mesh.vtm", storages[4], outer);
}

constexpr char arraysOfPieces[] = R"(<PPointData><PDataArray type="Float64" Name="T"/>
<PDataArray type="Float64" Name="V" NumberOfComponents="3"/></PPointData>
<PCellData><PDataArray type="Float64" Name="C"/></PCellData>
)";
constexpr char pointsOfPieces[] =
    "<PPoints><PDataArray type=\"Float64\" NumberOfComponents=\"3\"/></PPoints>\n";

std::string writePieces(const Folder& folder, const std::string& kind, const std::string& extension,
                        const std::string& attributes, const std::string& rest) {
    return writeText(folder / ("mesh.p" + extension),
                     "<VTKFile type=\"" + kind + "\" version=\"0.1\">\n<" + kind +
                         " GhostLevel=\"0\"" + attributes + ">\n" + arraysOfPieces + rest + "</" +
                         kind + ">\n</VTKFile>\n");
}

std::string writeGridPieces(const Folder& folder) {
    writeXml<vtkXMLUnstructuredGridWriter>(folder / "piece.vtu", storages[3], sampleGrid());
    return writePieces(folder, "PUnstructuredGrid", "vtu", "",
                       std::string(pointsOfPieces) +
                           "<Piece Source=\"piece.vtu\"/>\n<Piece Source=\"piece.vtu\"/>\n");
}

std::string writeImagePieces(const Folder& folder) {
    writeXml<vtkXMLImageDataWriter>(folder / "piece.vti", storages[4], sampleImage());
    return writePieces(folder, "PImageData", "vti",
                       " WholeExtent=\"0 4 0 4 0 4\" Origin=\"0 0 0\" Spacing=\"0.25 0.25 0.25\"",
                       "<Piece Extent=\"0 4 0 4 0 4\" Source=\"piece.vti\"/>\n");
}

std::string writeStructuredPieces(const Folder& folder) {
    writeXml<vtkXMLStructuredGridWriter>(folder / "piece.vts", storages[1], sampleStructuredGrid());
    return writePieces(folder, "PStructuredGrid", "vts", " WholeExtent=\"0 4 0 4 0 4\"",
                       std::string(pointsOfPieces) +
                           "<Piece Extent=\"0 4 0 4 0 4\" Source=\"piece.vts\"/>\n");
}

std::string writeSteps(const Folder& folder) {
    writeXml<vtkXMLUnstructuredGridWriter>(folder / "step0.vtu", storages[3], sampleGrid(0.0));
    writeXml<vtkXMLUnstructuredGridWriter>(folder / "step1.vtu", storages[4], sampleGrid(1.0));
    return writeText(folder / "steps.pvd", R"(<?xml version="1.0"?>
<VTKFile type="Collection" version="0.1">
<Collection>
<DataSet timestep="0" part="0" name="flow" file="step0.vtu"/>
<DataSet timestep="1" part="0" name="flow" file="step1.vtu"/>
</Collection>
</VTKFile>
)");
}

constexpr char surfaceText[] = R"(# a surface
mtllib none.mtl
o cube
v 0 0 0
v 1 0 0
v 1 1 0
v 0 1 0
v 0.5 0.5 1
vt 0 0
vt 1 0
vt 1 1
vt 0 1
vn 0 0 -1
vn 0 0 1
g base
usemtl stone
f 1/1/1 2/2/1 3/3/1 4/4/1
g sides
f 1//2 2//2 5//2
f 2 3 5
f 3/3 4/4 5/1
f -2 -5 -1
l 1 2 3
p 4 5
)";

template <class Writer>
std::string writeSurface(const Folder& file, bool isText) {
    const vtkNew<Writer> writer;
    isText ? writer->SetFileTypeToASCII() : writer->SetFileTypeToBinary();
    return write(*writer, file, sampleCube({1.0, 0.0, 0.0}, 1.0));
}

void addSurfaces(std::vector<MutationSample>& samples) {
    samples.push_back({"obj.text", [](const Folder& folder) {
                           return writeText(folder / "mesh.obj", surfaceText);
                       }});
    samples.push_back(
        {"obj.written", [](const Folder& folder) {
             const vtkNew<vtkOBJWriter> writer;
             return write(*writer, folder / "mesh.obj", sampleCube({1.0, 0.0, 0.0}, 1.0));
         }});
    for (const bool isText : {true, false}) {
        const std::string kind = isText ? ".text" : ".binary";
        samples.push_back({"stl" + kind, [=](const Folder& folder) {
                               return writeSurface<vtkSTLWriter>(folder / "mesh.stl", isText);
                           }});
        samples.push_back({"ply" + kind, [=](const Folder& folder) {
                               return writeSurface<vtkPLYWriter>(folder / "mesh.ply", isText);
                           }});
    }
}

} // namespace

std::vector<MutationSample> mutationSamples() {
    std::vector<MutationSample> samples;
    addXml<vtkXMLUnstructuredGridWriter>(samples, "vtu", sampleGrid());
    addXml<vtkXMLPolyDataWriter>(samples, "vtp", sampleCube({0.0, 0.0, 0.0}, 1.0));
    addXml<vtkXMLImageDataWriter>(samples, "vti", sampleImage());
    addXml<vtkXMLRectilinearGridWriter>(samples, "vtr", sampleRectilinearGrid());
    addXml<vtkXMLStructuredGridWriter>(samples, "vts", sampleStructuredGrid());
    samples.push_back({"vtu.polyhedron", [](const Folder& folder) {
                           return writeXml<vtkXMLUnstructuredGridWriter>(folder / "mesh.vtu",
                                                                         storages[0], polyhedron());
                       }});
    samples.push_back({"vtm", writeBlocks});
    samples.push_back({"pvtu", writeGridPieces});
    samples.push_back({"pvti", writeImagePieces});
    samples.push_back({"pvts", writeStructuredPieces});
    samples.push_back({"pvd", writeSteps});
    addLegacy<vtkUnstructuredGridWriter>(samples, "grid", sampleGrid());
    addLegacy<vtkUnstructuredGridWriter>(samples, "polyhedron", polyhedron());
    addLegacy<vtkPolyDataWriter>(samples, "surface", sampleCube({0.0, 0.0, 0.0}, 1.0));
    addLegacy<vtkStructuredPointsWriter>(samples, "image", sampleImage());
    addLegacy<vtkRectilinearGridWriter>(samples, "rectilinear", sampleRectilinearGrid());
    addLegacy<vtkStructuredGridWriter>(samples, "structured", sampleStructuredGrid());
    addSurfaces(samples);
    samples.push_back({"case.text", writeEnSightBox});
    samples.push_back({"case.binary", writeBinaryEnSightBox});
    samples.push_back({"foam", writeFoamBox});
    samples.push_back(
        {"exodus.classic", [](const Folder& folder) { return writeExodusBox(folder); }});
    samples.push_back({"exodus.hdf5", [](const Folder& folder) {
                           return writeExodusBox(folder, "box.e", ExodusKind::Hdf5);
                       }});
    samples.push_back({"cgns", writeCgnsBox});
    return samples;
}

} // namespace corvane::test
