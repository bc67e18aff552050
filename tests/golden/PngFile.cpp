// Pictures in PNG files.
#include "tests/golden/PngFile.h"

#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPNGReader.h>
#include <vtkPNGWriter.h>

#include <stdexcept>

namespace corvane::test {

namespace {

constexpr int channels = 3;

} // namespace

void writePng(const std::string& path, const host::Picture& picture) {
    const vtkNew<vtkImageData> image;
    image->SetDimensions(picture.width, picture.height, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, channels);
    auto* target = static_cast<unsigned char*>(image->GetScalarPointer());
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            for (int c = 0; c < channels; ++c) {
                *target++ = picture.row(y)[4 * x + c];
            }
        }
    }
    const vtkNew<vtkPNGWriter> writer;
    writer->SetFileName(path.c_str());
    writer->SetInputData(image);
    writer->Write();
    if (writer->GetErrorCode() != 0) {
        throw std::runtime_error("cannot write " + path);
    }
}

host::Picture readPng(const std::string& path) {
    const vtkNew<vtkPNGReader> reader;
    reader->SetFileName(path.c_str());
    reader->Update();
    vtkImageData& image = *reader->GetOutput();
    if (reader->GetErrorCode() != 0 || image.GetNumberOfScalarComponents() != channels) {
        throw std::runtime_error("cannot read " + path);
    }
    host::Picture picture{image.GetDimensions()[0], image.GetDimensions()[1], {}};
    picture.rgba.reserve(static_cast<std::size_t>(picture.width) *
                         static_cast<std::size_t>(picture.height) * 4U);
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const auto* const pixel =
                static_cast<const unsigned char*>(image.GetScalarPointer(x, y, 0));
            picture.rgba.insert(picture.rgba.end(), {pixel[0], pixel[1], pixel[2], 255});
        }
    }
    return picture;
}

} // namespace corvane::test
