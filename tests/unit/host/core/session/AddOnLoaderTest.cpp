// Tests of loading the libraries of add-ons.
#include "host/core/session/AddOnLoader.h"

#include "host/core/files/InputFiles.h"
#include "tests/support/Folders.h"
#include "tests/support/HostTest.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <sys/stat.h>

#include <filesystem>

namespace corvane::host {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

std::string library(const std::string& name) {
    return test::builtFile("tests/libraries/" + name + ".so");
}

bool isLoaded(const std::string& file) {
    void* handle = ::dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) {
        ::dlclose(handle);
    }
    return handle != nullptr;
}

class AddOnLoaderTest : public test::EmptyHostTest {
protected:
    std::string failureOf(const std::string& file) {
        try {
            loadAddOn(session, file);
        } catch (const HostError& error) {
            return error.what();
        }
        return {};
    }

    Session& session = host.session();
};

TEST_F(AddOnLoaderTest, loadsALibraryAndCallsItsEntryPoint) {
    loadAddOn(session, library("WellBehaved"));
    ASSERT_EQ(session.addOns().all().size(), 1U);
    EXPECT_EQ(session.addOns().all()[0]->name, "Well behaved");
    EXPECT_TRUE(isLoaded(library("WellBehaved")));
}

TEST_F(AddOnLoaderTest, whatIsLoadedIsAnInputOfTheProcess) {
    loadAddOn(session, library("WellBehaved"));
    EXPECT_TRUE(inputFiles().contains(library("WellBehaved")));
}

TEST_F(AddOnLoaderTest, refusesPipesAndDevices) {
    const test::TempFolder folder;
    ASSERT_EQ(::mkfifo(folder.file("pipe.so").c_str(), 0600), 0);
    for (const std::string& file : {folder.file("pipe.so"), std::string("/dev/zero")}) {
        EXPECT_EQ(failureOf(file),
                  "Cannot load the add-on " + file + ": it is not a regular file.");
    }
}

TEST_F(AddOnLoaderTest, loadsALibraryOnce) {
    loadAddOn(session, library("WellBehaved"));
    EXPECT_THAT(failureOf(library("WellBehaved")), HasSubstr("it is loaded already"));
    EXPECT_EQ(session.addOns().all().size(), 1U);
}

TEST_F(AddOnLoaderTest, survivesLibrariesThatEndTheProgram) {
    EXPECT_THAT(failureOf(library("AbortingEarly")),
                AllOf(HasSubstr("AbortingEarly"), HasSubstr("with a signal (Aborted)")));
    for (const char* name : {"ExitingEarly", "ThrowingEarly"}) {
        EXPECT_THAT(failureOf(library(name)),
                    AllOf(HasSubstr(name), HasSubstr("it ends a program that loads it")));
    }
}

// The loader maps what is not there, and finds out by a signal.
TEST_F(AddOnLoaderTest, survivesALibraryThatIsCutOff) {
    const test::TempFolder folder;
    const std::string cut = folder.file("Cut.so");
    for (const std::uintmax_t size : {100U, 1000U, 4096U, 8000U}) {
        std::filesystem::copy_file(library("WellBehaved"), cut,
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::resize_file(cut, size);
        EXPECT_THAT(failureOf(cut), HasSubstr("Cannot load the add-on " + cut)) << size;
    }
}

TEST_F(AddOnLoaderTest, aBareNameMeansAFileHere) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(test::builtFile("tests/libraries"));
    const std::string failure = failureOf("WellBehaved.so");
    std::filesystem::current_path(before);
    EXPECT_EQ(failure, "");
    EXPECT_EQ(session.addOns().all().size(), 1U);
}

TEST_F(AddOnLoaderTest, aLibraryWithoutEntryPointIsUnloadedAgain) {
    const std::string failure = failureOf(library("NoEntryPoint"));
    EXPECT_THAT(failure, HasSubstr(library("NoEntryPoint")));
    EXPECT_THAT(failure, HasSubstr("InitCorAddOn113"));
    EXPECT_FALSE(isLoaded(library("NoEntryPoint")));
}

TEST_F(AddOnLoaderTest, anEntryPointThatThrowsIsReportedAndItsLocksAreGone) {
    EXPECT_EQ(failureOf(library("Throwing")), "") << "the host goes on";
    const std::vector<std::string> errors = host.prompts().shown(test::ShownDialog::Kind::Error);
    EXPECT_THAT(errors,
                ElementsAre(AllOf(HasSubstr(library("Throwing")), HasSubstr("no menus here"))));
    EXPECT_EQ(session.locks().depth(), 0);
    EXPECT_TRUE(isLoaded(library("Throwing"))) << "its objects may be in use";
}

TEST_F(AddOnLoaderTest, filesThatAreNoLibrariesAreNamed) {
    const test::TempFolder folder;
    EXPECT_THAT(failureOf(folder.file("missing.so")), HasSubstr(folder.file("missing.so")));
    const std::string text = folder.write("text.so", "not a library");
    EXPECT_THAT(failureOf(text), HasSubstr("Cannot load the add-on " + text));
}

} // namespace
} // namespace corvane::host
