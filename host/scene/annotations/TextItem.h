// A line of text on top of a picture.
#pragma once

#include "host/core/page/FrameStyle.h"

#include <vtkNew.h>
#include <vtkTextActor.h>

#include <string>

namespace corvane::scene {

struct TextAppearance {
    enum class Align { Low, Middle, High }; ///< left, centre, right; bottom, centre, top

    int size = 12; ///< height of the letters in pixels as drawn
    host::Color color;
    Align horizontal = Align::Low;
    Align vertical = Align::Low;
    bool bold = false;
};

class TextItem {
public:
    /// x, y: pixels in the visible part of the frame, where the aligned point of the text goes.
    void show(const std::string& text, double x, double y, const TextAppearance& appearance);
    void hide();

    /// In pixels.
    static double widthOf(const std::string& text, const TextAppearance& appearance);

    vtkTextActor* actor() const { return m_actor; }

private:
    vtkNew<vtkTextActor> m_actor;
};

} // namespace corvane::scene
