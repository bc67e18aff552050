// Several frames on one page, made and arranged from the Frame menu.
#include "host/gui/window/MainWindow.h"
#include "tests/gui/WindowTest.h"

#include <QAction>
#include <QMenu>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class FrameMenu : public WindowTest {
protected:
    void SetUp() override { openData(); }

    QAction& action(const QString& text) {
        const auto actions = window().menu(QStringLiteral("Frame")).actions();
        for (QAction* const found : actions) {
            if (found->text().remove(QLatin1Char('&')) == text) {
                return *found;
            }
        }
        throw std::logic_error("There is no " + text.toStdString());
    }
    void choose(const char* text) {
        action(QString::fromUtf8(text)).trigger();
        settle();
    }
    std::vector<long> stack() {
        std::vector<long> ids;
        for (const auto& frame : session().page().frames()) {
            ids.push_back(frame->id());
        }
        return ids;
    }
};

TEST_F(FrameMenu, aNewFrameTakesHalfOfTheActiveOne) {
    const host::Placement whole = frame().placement;
    choose("New Frame Beside");
    ASSERT_THAT(stack(), ElementsAre(2, 1));
    EXPECT_EQ(frame().id(), 2);
    EXPECT_DOUBLE_EQ(frame().placement.width, whole.width / 2);
    EXPECT_DOUBLE_EQ(frame().placement.x, whole.x + whole.width / 2);
    choose("New Frame Below");
    ASSERT_THAT(stack(), ElementsAre(3, 2, 1));
    EXPECT_DOUBLE_EQ(frame().placement.height, whole.height / 2);
    EXPECT_DOUBLE_EQ(frame().placement.y, whole.y + whole.height / 2);
}

TEST_F(FrameMenu, framesAreStackedAndDeleted) {
    choose("New Frame Beside");
    choose("Send to Back");
    EXPECT_THAT(stack(), ElementsAre(1, 2));
    choose("Bring to Front");
    EXPECT_THAT(stack(), ElementsAre(2, 1));
    choose("Delete Frame");
    EXPECT_THAT(stack(), ElementsAre(1));
    EXPECT_EQ(frame().id(), 1);
}

TEST_F(FrameMenu, theLastFrameCannotBeDeleted) {
    EXPECT_FALSE(action(QStringLiteral("Delete Frame")).isEnabled());
    EXPECT_FALSE(action(QStringLiteral("Send to Back")).isEnabled());
    choose("New Frame Beside");
    EXPECT_TRUE(action(QStringLiteral("Delete Frame")).isEnabled());
}

TEST_F(FrameMenu, isRecorded) {
    program().recorder().start();
    choose("New Frame Beside");
    choose("Delete Frame");
    std::vector<std::string> lines = program().recorder().stop();
    // Without data there is no time bar, which leaves more room to the picture.
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("$!WORKAREA"); });
    EXPECT_THAT(lines, ElementsAre(HasSubstr("$!FRAME PLACE Width = "),
                                   HasSubstr("$!FRAME CREATE X = "), "$!FRAME DELETE"));
}

} // namespace
} // namespace corvane::test
