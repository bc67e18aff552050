// The key frame dialog in the hands of a user.
#pragma once

#include "tests/gui/KeyFrameWindowTest.h"

#include <initializer_list>

namespace corvane::test {

inline const QString viewName = QStringLiteral("View Name:");
inline const QString frameCount = QStringLiteral("Frame Count:");
inline const QString animateAll = QStringLiteral("Animate All");
inline const QString animateSelected = QStringLiteral("Animate Selected");

/// "View 1" and so on.
inline QStringList views(std::initializer_list<int> numbers) {
    QStringList names;
    for (const int number : numbers) {
        names.append(QStringLiteral("View %1").arg(number));
    }
    return names;
}

class KeyFrameDialog : public KeyFrameWindowTest {
protected:
    using KeyFrameWindowTest::KeyFrameWindowTest;

    /// By the File menu, with this answer of the file dialog.
    void saveAs(const DialogUser& dialog, const std::string& name) {
        prompts.answerFile(folder.file(name));
        dialog.choose(QStringLiteral("File"), QStringLiteral("Save Animation File As..."));
    }
    void openFile(const DialogUser& dialog, const std::string& fileName) {
        prompts.answerFile(fileName);
        dialog.choose(QStringLiteral("File"), QStringLiteral("Open Animation File..."));
    }
    bool isEnabledSoon(const DialogUser& dialog, const QString& button) {
        return waitUntil([&] { return dialog.button(button).isEnabled(); });
    }
};

} // namespace corvane::test
