#include "host/scene/formats/ensight/EnSightFile.h"

#include "host/core/files/InputFiles.h"
#include "host/scene/formats/ensight/EnSightCase.h"
#include "host/scene/formats/ensight/EnSightGeometry.h"
#include "host/scene/formats/ensight/EnSightValues.h"
#include "host/scene/mesh/ReadError.h"

#include <filesystem>
#include <set>

namespace corvane::scene {

namespace {

/// Adds the name of the file to the reason, since a case consists of several.
template <class Work>
auto aboutFile(const std::string& path, const Work& work) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        throw ReadFailure("it names " + path + ", which is no file");
    }
    host::inputFiles().add(path);
    try {
        return work();
    } catch (const ReadFailure& failure) {
        throw ReadFailure("its file " + path + " " + failure.what());
    }
}

std::vector<MeshPart> partsOf(EnSightParts& read) {
    std::vector<MeshPart> parts;
    std::set<std::string> names;
    for (auto& [number, part] : read) {
        if (part.mesh->GetNumberOfPoints() == 0) {
            continue;
        }
        const std::string name = part.name.empty() ? "part" : part.name;
        const bool isNew = names.insert(name).second;
        parts.push_back({isNew ? name : name + " " + std::to_string(number), part.mesh});
    }
    return parts;
}

} // namespace

EnSightFile::EnSightFile(const std::string& path) : MeshFile(path) {}

EnSightFile::~EnSightFile() = default;

std::vector<double> EnSightFile::readTimes() const {
    return caseText().times();
}

std::vector<MeshPart> EnSightFile::readParts(int step) const {
    const EnSightCase& text = caseText();
    const double time =
        text.times().empty() ? 0.0 : text.times().at(static_cast<std::size_t>(step));
    const auto place = text.placeOf(text.geometry(), time);
    EnSightInput::Kind kind = EnSightInput::Kind::Text;
    EnSightParts read = aboutFile(place.path, [&] {
        kind = EnSightInput::kindOf(place.path);
        EnSightInput input(place.path, kind);
        return readEnSightGeometry(input, place.index);
    });
    for (const EnSightVariable& variable : text.variables()) {
        const auto at = text.placeOf(variable.files, time);
        aboutFile(at.path, [&] {
            EnSightInput input(at.path, kind);
            readEnSightValues(input, at.index, variable, read);
        });
    }
    return partsOf(read);
}

const EnSightCase& EnSightFile::caseText() const {
    std::call_once(m_caseRead, [this] { m_case = std::make_unique<EnSightCase>(path()); });
    return *m_case;
}

} // namespace corvane::scene
