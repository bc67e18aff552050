// Options of add-ons in a menu bar.
#include "host/gui/widgets/QtMainMenu.h"

#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QMenu>
#include <QMenuBar>

namespace corvane::gui {
namespace {

class QtMainMenuTest : public ::testing::Test {
protected:
    QtMainMenuTest() {
        test::startQt();
        bar = std::make_unique<QMenuBar>();
        bar->addMenu(QStringLiteral("&File"));
        bar->addMenu(QStringLiteral("A&nimate"));
        bar->addMenu(QStringLiteral("&Help"));
        menu = std::make_unique<QtMainMenu>(*bar);
    }
    host::MenuOption option(const char* title) {
        host::MenuOption made;
        made.menu = title;
        made.label = "&Kites...";
        made.chosen = [this] { ++chosen; };
        return made;
    }
    QStringList titles() const {
        QStringList all;
        for (const QAction* entry : bar->actions()) {
            all.push_back(entry->text());
        }
        return all;
    }
    std::unique_ptr<QMenuBar> bar;
    std::unique_ptr<QtMainMenu> menu;
    int chosen = 0;
};

TEST_F(QtMainMenuTest, anOptionGoesIntoTheMenuOfThatTitle) {
    const host::MenuOption kites = option("Animate");
    menu->add(kites);
    const QList<QAction*> entries = bar->actions()[1]->menu()->actions();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0]->text(), QStringLiteral("&Kites..."));
    EXPECT_EQ(bar->actions().size(), 3);
    entries[0]->trigger();
    EXPECT_EQ(chosen, 1);
}

TEST_F(QtMainMenuTest, aMenuThatIsMissingIsMadeBeforeHelp) {
    const host::MenuOption kites = option("Sky");
    menu->add(kites);
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("&File"), QStringLiteral("A&nimate"),
                                     QStringLiteral("Sky"), QStringLiteral("&Help")}));
}

TEST_F(QtMainMenuTest, aDimmedOptionCannotBeChosen) {
    host::MenuOption kites = option("Animate");
    menu->add(kites);
    kites.isSensitive = false;
    menu->changed(kites);
    QAction* const action = bar->actions()[1]->menu()->actions()[0];
    EXPECT_FALSE(action->isEnabled());
    action->trigger();
    EXPECT_EQ(chosen, 0);
}

TEST_F(QtMainMenuTest, closingTakesTheOptionsAway) {
    const host::MenuOption kites = option("Animate");
    menu->add(kites);
    QAction* const action = bar->actions()[1]->menu()->actions()[0];
    menu->close();
    action->trigger();
    EXPECT_EQ(chosen, 0);
    EXPECT_FALSE(action->isVisible());
}

} // namespace
} // namespace corvane::gui
