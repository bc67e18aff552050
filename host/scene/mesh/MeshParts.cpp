#include "host/scene/mesh/MeshParts.h"

#include <vtkCellTypes.h>
#include <vtkCompositeDataSet.h>
#include <vtkDataObjectTree.h>
#include <vtkDataObjectTreeIterator.h>
#include <vtkGenericCell.h>
#include <vtkInformation.h>
#include <vtkNew.h>

#include <algorithm>
#include <set>

namespace corvane::scene {

namespace {

/// Collects the leaves of a tree of blocks under unique names.
class PartCollector {
public:
    void add(vtkDataObject* object, const std::string& name) {
        if (auto* const mesh = vtkDataSet::SafeDownCast(object)) {
            addMesh(mesh, name);
        } else if (auto* const tree = vtkDataObjectTree::SafeDownCast(object)) {
            addTree(*tree, name);
        }
    }
    std::vector<MeshPart> take() { return std::move(m_parts); }

private:
    void addMesh(vtkDataSet* mesh, const std::string& name) {
        if (mesh->GetNumberOfPoints() == 0) {
            return;
        }
        std::string unique = name;
        for (int n = 2; !m_names.insert(unique).second; ++n) {
            unique = name + " " + std::to_string(n);
        }
        m_parts.push_back({unique, mesh});
    }

    void addTree(vtkDataObjectTree& tree, const std::string& name) {
        const auto iterator =
            vtkSmartPointer<vtkDataObjectTreeIterator>::Take(tree.NewTreeIterator());
        iterator->VisitOnlyLeavesOff();
        iterator->TraverseSubTreeOff();
        iterator->SkipEmptyNodesOff();
        int index = 0;
        for (iterator->InitTraversal(); !iterator->IsDoneWithTraversal();
             iterator->GoToNextItem()) {
            ++index;
            const bool named = iterator->HasCurrentMetaData() &&
                               iterator->GetCurrentMetaData()->Has(vtkCompositeDataSet::NAME());
            const std::string own =
                named ? iterator->GetCurrentMetaData()->Get(vtkCompositeDataSet::NAME())
                      : "block " + std::to_string(index);
            add(iterator->GetCurrentDataObject(), name.empty() ? own : name + "/" + own);
        }
    }

    std::vector<MeshPart> m_parts;
    std::set<std::string> m_names;
};

} // namespace

std::vector<MeshPart> meshParts(vtkDataObject* object) {
    PartCollector collector;
    collector.add(object, {});
    return collector.take();
}

int meshDimension(vtkDataSet& mesh) {
    const vtkNew<vtkCellTypes> types;
    mesh.GetCellTypes(types);
    int dimension = 0;
    const vtkNew<vtkGenericCell> cell;
    for (vtkIdType i = 0; i < types->GetNumberOfTypes(); ++i) {
        cell->SetCellType(types->GetCellType(i));
        dimension = std::max(dimension, cell->GetCellDimension());
    }
    return dimension;
}

} // namespace corvane::scene
