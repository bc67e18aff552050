// What the user learns when a picture of the window cannot be drawn.
#include "host/gui/view/DrawingArea.h"
#include "tests/gui/WindowTest.h"

#include <new>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Runs out of memory once.
class PoorRenderer : public MemoryRenderer {
public:
    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override {
        if (!hasFailed) {
            hasFailed = true;
            throw std::bad_alloc();
        }
        return MemoryRenderer::draw(page, request);
    }

    bool hasFailed = false;
};

/// A base class, since the renderer must outlive the window.
struct WithPoorRenderer {
    PoorRenderer poorRenderer;
};

class FailedPicture : private WithPoorRenderer, public WindowTest {
protected:
    FailedPicture() : WindowTest({.renderer = &poorRenderer}) {}

    const PoorRenderer& usedRenderer() const { return poorRenderer; }
};

TEST_F(FailedPicture, isReportedWhateverTheReason) {
    openData();
    EXPECT_TRUE(usedRenderer().hasFailed);
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::Error),
                ElementsAre(HasSubstr("There is not enough memory.")));
    session().drawing().mark();
    settle();
    EXPECT_EQ(drawingArea().image().size(), drawingArea().pixels()) << "the window goes on";
}

} // namespace

} // namespace corvane::test
