// The meshes of an EnSight Gold geometry.
#pragma once

#include "host/scene/formats/ensight/EnSightInput.h"

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <map>
#include <string>
#include <vector>

namespace corvane::scene {

struct EnSightPart {
    /// The cells of one kind, which are consecutive in the mesh.
    struct Cells {
        vtkIdType first = 0;
        vtkIdType count = 0;
        bool isGhost = false; ///< belong to a neighbouring piece: not in the mesh
    };

    std::string name;
    vtkSmartPointer<vtkDataSet> mesh;
    std::map<std::string, Cells> cells; ///< by the keyword of the kind; "block" for blocks
};

using EnSightParts = std::map<int, EnSightPart>; ///< by their numbers

/// Reads one geometry; in a file of several, the one at the index. Throws ReadFailure: what follows
/// the file's name in a sentence.
EnSightParts readEnSightGeometry(EnSightInput& input, int index);

/// Advances to the state at the index, in a file of one state (index 0) or of several. skip reads
/// one state.
template <class Skip>
void goToEnSightStep(EnSightInput& input, int index, Skip skip) {
    const std::string begin = "BEGIN TIME STEP";
    for (; input.peekKeyword() == begin; --index) {
        input.keyword();
        if (index == 0) {
            return;
        }
        skip();
        input.keyword(); // END TIME STEP
    }
}

/// Whether a part follows, and not the end of the state or of the file.
bool hasEnSightPart(EnSightInput& input);

} // namespace corvane::scene
