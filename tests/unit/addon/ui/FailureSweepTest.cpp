// Whatever operation of the host fails, the add-on leaves nothing behind.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::IsEmpty;

// A host of its own for each failure.
struct Scene {
    MemoryHost host;
    const RegisteredAddOn registration;
    const FreshDialogs prompts;
    const TempFolder folder;
};

// What a user can still do when something is missing: the rest throws.
void attempt(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::logic_error&) {
        // Dimmed, or not there.
    }
}

// Runs the user's acts once for each call in them, with that call failing.
void sweep(const std::function<void(Scene&)>& acts) {
    for (std::size_t k = 1;; ++k) {
        Scene scene;
        scene.host.failAt(k);
        acts(scene);
        const bool hasFailed = scene.host.hasFailedAt();
        scene.host.failAt(0);
        if (scene.host.gui().hasDialog("Export Options")) {
            attempt([&] { scene.host.gui().dialog("Export Options").cancel(); });
        }
        EXPECT_THAT(scene.host.leftBehind(), IsEmpty()) << "failure " << k;
        if (!hasFailed) {
            EXPECT_GT(k, 10u);
            break;
        }
    }
}

void act(Scene& scene, const std::function<void(const MemoryDialog&)>& use) {
    attempt([&] { use(scene.host.gui().dialog("Key Frame Animation")); });
    scene.host.runIdle();
}

TEST(FailureSweep, ofEditing) {
    sweep([](Scene& scene) {
        DialogMain::launch();
        for (int count = 0; count < 3; ++count) {
            act(scene, [](auto const& window) { window.button("Append").click(); });
        }
        act(scene, [](auto const& window) { window.list().select({2}); });
        act(scene, [](auto const& window) { window.button("Apply").click(); });
        act(scene, [](auto const& window) { window.button("Update").click(); });
        act(scene, [](auto const& window) { window.button("Insert").click(); });
        act(scene, [](auto const& window) { window.button("Delete").click(); });
        act(scene, [](auto const& window) { window.close(); });
    });
}

TEST(FailureSweep, ofPlayingToAFile) {
    sweep([](Scene& scene) {
        // Small pictures, since hundreds of movies are made of them.
        scene.host.session().silentPage().workArea = {
            .width = 32, .height = 18, .pixelsPerInch = 2.0};
        DialogMain::launch();
        for (int count = 0; count < 2; ++count) {
            act(scene, [](auto const& window) { window.button("Append").click(); });
        }
        attempt([] { DialogMain::instance().model().setFrameCount(0, 2); });
        act(scene, [](auto const& window) { window.optionMenu().choose("To File"); });
        act(scene, [](auto const& window) { window.button("Animate All").click(); });
        scene.host.prompts().answerFile(scene.folder.file("flight.avi"));
        attempt([&] { scene.host.gui().dialog("Export Options").ok(); });
    });
}

TEST(FailureSweep, ofFiles) {
    sweep([](Scene& scene) {
        DialogMain::launch();
        act(scene, [](auto const& window) { window.button("Append").click(); });
        scene.host.prompts().answerFile(scene.folder.file("orbit.keyframe"));
        act(scene,
            [](auto const& window) { window.menu("File").item("Save Animation File").choose(); });
        scene.host.prompts().answerFile(scene.folder.file("orbit.keyframe"));
        act(scene, [](auto const& window) {
            window.menu("File").item("Open Animation File...").choose();
        });
    });
}

TEST(FailureSweep, ofTimeOptions) {
    sweep([](Scene& scene) {
        DialogMain::launch();
        act(scene, [](auto const& window) {
            window.menu("Options").item("Time Animation Options...").choose();
        });
        attempt([&] { scene.host.gui().dialog("Time Animation Options").spinField().up(); });
        attempt([&] { scene.host.gui().dialog("Time Animation Options").ok(); });
    });
}

} // namespace
