// What no reader may return, and what the user is told of a reader's exceptions.
#include "host/scene/mesh/MeshFile.h"
#include "host/core/base/HostError.h"
#include "host/scene/mesh/ReadError.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <gtest/gtest.h>

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>

namespace corvane::test {

namespace {

using Parts = std::vector<scene::MeshPart>;

/// A file whose reader does what the test says.
class ScriptedFile : public scene::MeshFile {
public:
    explicit ScriptedFile(std::function<Parts()> work)
        : MeshFile("/data/a.mesh"), m_work(std::move(work)) {}

    mutable int timesRead = 0;

private:
    std::vector<double> readTimes() const override {
        ++timesRead;
        m_work();
        return {1.0, 2.0};
    }
    Parts readParts(int /*step*/) const override { return m_work(); }

    std::function<Parts()> m_work;
};

template <class Work>
std::string errorOf(const Work& work) {
    try {
        work();
    } catch (const host::HostError& error) {
        return error.what();
    }
    return "no error";
}

std::string errorOfRead(const Parts& parts) {
    return errorOf([&] { ScriptedFile([&] { return parts; }).read(0); });
}

template <class Exception>
void expectReason(const Exception& thrown, const std::string& reason) {
    const std::string sentence = "/data/a.mesh cannot be read: " + reason + ".";
    const auto fail = [&]() -> Parts { throw thrown; };
    EXPECT_EQ(errorOf([&] { ScriptedFile(fail).read(0); }), sentence);
    EXPECT_EQ(errorOf([&] { ScriptedFile(fail).times(); }), sentence);
}

} // namespace

TEST(MeshFile, refusesFilesWithoutMeshes) {
    EXPECT_EQ(errorOfRead({}), "/data/a.mesh cannot be read: it holds no mesh.");
}

TEST(MeshFile, refusesDamagedMeshes) {
    const auto grid = sampleGrid();
    EXPECT_EQ(errorOfRead({{"", grid}}), "no error");
    const vtkNew<vtkDoubleArray> tooShort;
    tooShort->SetName("short");
    tooShort->InsertNextValue(1.0);
    grid->GetPointData()->AddArray(tooShort);
    EXPECT_EQ(errorOfRead({{"", grid}}), "/data/a.mesh cannot be read: it is damaged.");
    EXPECT_EQ(errorOfRead({{"inlet", grid}}),
              "/data/a.mesh cannot be read: its mesh \"inlet\" is damaged.");
}

TEST(MeshFile, tellsReasonsInSentences) {
    expectReason(scene::ReadFailure("it is a letter"), "it is a letter");
}

TEST(MeshFile, passesSentencesOn) {
    const auto fail = []() -> Parts { throw host::HostError("The disk is gone."); };
    EXPECT_EQ(errorOf([&] { ScriptedFile(fail).read(0); }), "The disk is gone.");
}

TEST(MeshFile, neverTellsTheTextOfALibrary) {
    const std::string tooLarge = "it is damaged, or larger than this machine's memory";
    expectReason(std::bad_alloc(), tooLarge);
    expectReason(std::length_error("vector::_M_default_append"), tooLarge);
    expectReason(std::out_of_range("map::at"), "it is damaged, or its reader has made a mistake");
    const auto denied = std::make_error_code(std::errc::permission_denied);
    expectReason(std::filesystem::filesystem_error("status", "/data/constant", denied),
                 "/data/constant cannot be used: " + denied.message());
}

TEST(MeshFile, readsTimesOnce) {
    const ScriptedFile file([] { return Parts{}; });
    EXPECT_EQ(file.times(), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(file.times().size(), 2U);
    EXPECT_EQ(file.timesRead, 1);
}

} // namespace corvane::test
