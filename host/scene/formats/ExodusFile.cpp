#include "host/scene/formats/ExodusFile.h"

#include "host/scene/formats/NetCdfCheck.h"
#include "host/scene/mesh/Hdf5Mutex.h"
#include "host/scene/mesh/MeshParts.h"

#include <vtkExodusIIReader.h>
#include <vtkMultiBlockDataSet.h>

namespace corvane::scene {

vtkSmartPointer<vtkAlgorithm> ExodusFile::openReader() const {
    silenceHdf5();
    std::call_once(m_checked, [this] { checkExodus(path()); });
    auto reader = vtkSmartPointer<vtkExodusIIReader>::New();
    reader->SetFileName(path().c_str());
    reader->GenerateObjectIdCellArrayOff();
    reader->ApplyDisplacementsOn();
    reader->UpdateInformation();
    reader->SetAllArrayStatus(vtkExodusIIReader::NODAL, 1);
    reader->SetAllArrayStatus(vtkExodusIIReader::ELEM_BLOCK, 1);
    return reader;
}

std::vector<MeshPart> ExodusFile::partsOf(vtkAlgorithm& reader) const {
    auto* const kinds = vtkMultiBlockDataSet::SafeDownCast(reader.GetOutputDataObject(0));
    // Element blocks come first, then faces, edges and sets, which are not read.
    const bool hasBlocks = kinds != nullptr && kinds->GetNumberOfBlocks() > 0;
    return hasBlocks ? meshParts(kinds->GetBlock(0)) : std::vector<MeshPart>{};
}

std::mutex* ExodusFile::libraryMutex() const {
    return &hdf5Mutex();
}

} // namespace corvane::scene
