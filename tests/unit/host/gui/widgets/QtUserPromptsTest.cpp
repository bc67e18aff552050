// Messages, questions, file names and help, answered as a user would.
#include "host/gui/widgets/QtUserPrompts.h"

#include "host/gui/base/QtText.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>
#include <fstream>

namespace corvane::gui {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Browser : public QObject {
    Q_OBJECT
public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    Q_INVOKABLE void open(const QUrl& url) { opened.push_back(url.toLocalFile().toStdString()); }
    std::vector<std::string> opened;
};

class QtUserPromptsTest : public ::testing::Test {
protected:
    QtUserPromptsTest() {
        test::startQt();
        window = std::make_unique<QMainWindow>();
        prompts = std::make_unique<QtUserPrompts>(
            *window, toQt(folder.path().string()),
            [this](const std::string& sentence) { status.push_back(sentence); });
        std::ofstream(folder.path() / "old.mp4") << "old";
        std::ofstream(folder.path() / "page.html") << "<p>Help</p>";
    }
    /// Does this with the box that comes up next.
    template <class T>
    static void answer(std::function<void(T&)> work) {
        QTimer::singleShot(0, [work = std::move(work)] {
            auto* const box = qobject_cast<T*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            work(*box);
        });
    }
    static void accept(QFileDialog& dialog, const QString& name) {
        auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
        if (dialog.isVisible()) {
            dialog.reject();
        }
    }
    std::optional<std::string> ask(bool forWriting, const std::string& name) {
        answer<QFileDialog>([&](QFileDialog& dialog) { accept(dialog, toQt(name)); });
        return prompts->askFileName(forWriting, "Movie", path("start.mp4"), "*.mp4");
    }
    std::string path(const char* name) const { return (folder.path() / name).string(); }

    test::TempFolder folder;
    std::unique_ptr<QMainWindow> window;
    std::unique_ptr<QtUserPrompts> prompts;
    std::vector<std::string> status;
};

TEST_F(QtUserPromptsTest, messagesArePlainAndHaveOneButton) {
    int shown = 0;
    const auto look = [&](QMessageBox& box) {
        ++shown;
        EXPECT_EQ(box.text(), QStringLiteral("a <b>\n& c"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        QTest::keyClick(&box, Qt::Key_Escape);
    };
    answer<QMessageBox>(look);
    prompts->showError("a <b>\n& c");
    answer<QMessageBox>(look);
    prompts->showNotice("a <b>\n& c");
    EXPECT_EQ(shown, 2);
}

TEST_F(QtUserPromptsTest, onlyYesIsYes) {
    answer<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(prompts->askYesNo("Replace?"));
    answer<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(prompts->askYesNo("Replace?"));
    answer<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(prompts->askYesNo("Replace?"));
    answer<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_FALSE(prompts->askYesNo("Replace?"));
}

TEST_F(QtUserPromptsTest, writingReplacesWithoutAQuestionAndAddsTheEnding) {
    EXPECT_EQ(ask(true, path("old.mp4")), path("old.mp4"));
    EXPECT_EQ(ask(true, path("new")), path("new.mp4"));
    EXPECT_EQ(ask(true, path("new.avi")), path("new.avi"));
}

TEST_F(QtUserPromptsTest, theDialogStartsWithTheDefaultName) {
    answer<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.path().string());
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                  QStringLiteral("start.mp4"));
        EXPECT_EQ(dialog.nameFilters(),
                  (QStringList{QStringLiteral("Movie (*.mp4)"), QStringLiteral("All files (*)")}));
        dialog.reject();
    });
    EXPECT_EQ(prompts->askFileName(true, "Movie", path("start.mp4"), "*.mp4"), std::nullopt);
}

TEST_F(QtUserPromptsTest, readingTakesAFileThatExists) {
    EXPECT_EQ(ask(false, path("old.mp4")), path("old.mp4"));
}

TEST_F(QtUserPromptsTest, helpOpensAPage) {
    Browser browser;
    EXPECT_TRUE(prompts->showHelp("page.html"));
    EXPECT_THAT(browser.opened, ElementsAre(path("page.html")));
    EXPECT_THAT(status, IsEmpty());
}

TEST_F(QtUserPromptsTest, aMissingPageIsToldInTheStatusLine) {
    Browser browser;
    EXPECT_FALSE(prompts->showHelp("lost.html"));
    EXPECT_FALSE(prompts->showHelp(""));
    EXPECT_THAT(browser.opened, IsEmpty());
    EXPECT_THAT(status, ElementsAre(HasSubstr("lost.html"), HasSubstr("no help page")));
}

} // namespace
} // namespace corvane::gui

#include "QtUserPromptsTest.moc"
