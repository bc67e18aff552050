#include "host/scene/formats/VtkFiles.h"

#include "host/scene/formats/NamedFilesCheck.h"
#include "host/scene/formats/ReadingTrial.h"
#include "host/scene/formats/legacy/LegacyCheck.h"
#include "host/scene/formats/surface/ObjCheck.h"
#include "host/scene/formats/surface/StlCheck.h"
#include "host/scene/formats/xml/XmlFileCheck.h"

#include <vtkDataSetAttributes.h>
#include <vtkGenericDataObjectReader.h>
#include <vtkNew.h>
#include <vtkOBJReader.h>
#include <vtkPolyData.h>
#include <vtkSTLReader.h>
#include <vtkXMLGenericDataObjectReader.h>

namespace corvane::scene {

namespace {

template <class Reader>
vtkSmartPointer<vtkDataObject> outputOf(Reader& reader, const std::string& path) {
    reader.SetFileName(path.c_str());
    reader.Update();
    return reader.GetOutputDataObject(0);
}

} // namespace

vtkSmartPointer<vtkDataObject> VtkXmlFile::readObject() const {
    checkNamedFiles(path());
    expectHarmless(path(), 0, checkXmlFile);
    const vtkNew<vtkXMLGenericDataObjectReader> reader;
    return outputOf(*reader, path());
}

vtkSmartPointer<vtkDataObject> LegacyVtkFile::readObject() const {
    expectHarmless(path(), 0, checkLegacyFile);
    const vtkNew<vtkGenericDataObjectReader> reader;
    // Otherwise it keeps the first array of each kind alone.
    reader->ReadAllScalarsOn();
    reader->ReadAllVectorsOn();
    reader->ReadAllFieldsOn();
    return outputOf(*reader, path());
}

vtkSmartPointer<vtkDataObject> StlFile::readObject() const {
    expectHarmless(path(), 0, checkStlFile);
    const vtkNew<vtkSTLReader> reader;
    return outputOf(*reader, path());
}

vtkSmartPointer<vtkDataObject> ObjFile::readObject() const {
    expectHarmless(path(), 0, checkObjFile);
    const vtkNew<vtkOBJReader> reader;
    auto surface = outputOf(*reader, path());
    // The reader numbers groups and materials, which are no quantities.
    surface->GetAttributes(vtkDataObject::CELL)->Initialize();
    return surface;
}

} // namespace corvane::scene
