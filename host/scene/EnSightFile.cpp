// EnSight cases (.case).
#include "host/scene/EnSightFile.h"

#include <vtkGenericEnSightReader.h>

namespace corvane::scene {

vtkSmartPointer<vtkAlgorithm> EnSightFile::openReader() const {
    auto reader = vtkSmartPointer<vtkGenericEnSightReader>::New();
    reader->SetCaseFileName(path().c_str());
    reader->ReadAllVariablesOn();
    reader->UpdateInformation();
    return reader;
}

} // namespace corvane::scene
