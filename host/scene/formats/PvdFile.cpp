#include "host/scene/formats/PvdFile.h"

#include "host/scene/formats/ReadingTrial.h"
#include "host/scene/formats/xml/XmlFileCheck.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkSmartPointer.h>
#include <vtkXMLDataElement.h>
#include <vtkXMLUtilities.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <utility>

namespace corvane::scene {

namespace {

std::string attribute(vtkXMLDataElement& element, const char* name) {
    const char* const value = element.GetAttribute(name);
    return value != nullptr ? value : "";
}

vtkSmartPointer<vtkXMLDataElement> parse(const std::string& path) {
    expectHarmless(path, 0, checkXmlElements);
    const VtkMessages messages;
    const auto root = vtkSmartPointer<vtkXMLDataElement>::Take(
        vtkXMLUtilities::ReadElementFromFile(path.c_str()));
    if (messages.hasErrors()) {
        throw ReadFailure(messages.reason());
    }
    if (root == nullptr) {
        throw ReadFailure("it is not well-formed XML");
    }
    return root;
}

/// The elements of the list in their order.
std::vector<vtkXMLDataElement*> entriesOf(vtkXMLDataElement& root) {
    auto* const collection = root.FindNestedElementWithName("Collection");
    if (attribute(root, "type") != "Collection" || collection == nullptr) {
        throw ReadFailure("it holds no collection of data sets");
    }
    std::vector<vtkXMLDataElement*> entries;
    for (int i = 0; i < collection->GetNumberOfNestedElements(); ++i) {
        entries.push_back(collection->GetNestedElement(i));
    }
    if (entries.empty()) {
        throw ReadFailure("its collection is empty");
    }
    return entries;
}

PvdPart::Step stepOf(vtkXMLDataElement& entry, const std::string& path) {
    PvdPart::Step step;
    const std::string file = attribute(entry, "file");
    if (file.empty()) {
        throw ReadFailure("an entry names no file");
    }
    step.path = (std::filesystem::path(path).parent_path() / file).string();
    if (!attribute(entry, "timestep").empty() &&
        (entry.GetScalarAttribute("timestep", step.time) == 0 || !std::isfinite(step.time))) {
        throw ReadFailure("\"" + attribute(entry, "timestep") + "\" is not a time");
    }
    return step;
}

void checkFiles(const std::vector<PvdPart>& parts, const std::string& list) {
    std::string firstMissing;
    int missing = 0;
    for (const auto& part : parts) {
        for (const auto& step : part.steps) {
            if (!std::filesystem::exists(step.path)) {
                firstMissing = missing++ == 0 ? step.path : firstMissing;
            } else if (std::filesystem::equivalent(step.path, list)) {
                throw ReadFailure("it names itself as one of its files");
            }
        }
    }
    if (missing == 0) {
        return;
    }
    const std::string others =
        missing == 1 ? "" : " and " + std::to_string(missing - 1) + " more of its files";
    throw ReadFailure("it names " + firstMissing + ", which does not exist" + others);
}

/// By time; of several entries for one time, the last counts.
void sortSteps(std::vector<PvdPart::Step>& steps) {
    std::stable_sort(steps.begin(), steps.end(),
                     [](const auto& a, const auto& b) { return a.time < b.time; });
    std::reverse(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end(),
                            [](const auto& a, const auto& b) { return a.time == b.time; }),
                steps.end());
    std::reverse(steps.begin(), steps.end());
}

std::string nameOf(const std::string& ownName, const std::string& key, const std::string& path,
                   std::size_t partCount) {
    if (!ownName.empty()) {
        return ownName;
    }
    const std::string stem = std::filesystem::path(path).stem().string();
    return partCount == 1 ? stem : stem + " " + key;
}

std::vector<PvdPart> readList(const std::string& path) {
    const auto root = parse(path);

    std::map<std::string, std::size_t> indexOf;
    std::vector<std::string> keys;
    std::vector<PvdPart> parts;
    for (auto* const entry : entriesOf(*root)) {
        const std::string group = attribute(*entry, "group");
        const std::string key =
            group.empty() ? attribute(*entry, "part") : group + " " + attribute(*entry, "part");
        const auto [found, isNew] = indexOf.emplace(key, parts.size());
        if (isNew) {
            keys.push_back(key);
            parts.push_back({attribute(*entry, "name"), {}});
        }
        parts[found->second].steps.push_back(stepOf(*entry, path));
    }
    checkFiles(parts, path);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        parts[i].name = nameOf(parts[i].name, keys[i], path, parts.size());
        sortSteps(parts[i].steps);
    }
    return parts;
}

} // namespace

std::vector<PvdPart> readPvd(const std::string& path) {
    return withReadErrors(path, [&] { return readList(path); });
}

} // namespace corvane::scene
