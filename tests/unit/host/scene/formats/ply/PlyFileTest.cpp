// Surfaces in PLY files, written by hand.
#include "host/scene/formats/ply/PlyFile.h"
#include "host/core/base/HostError.h"
#include "tests/support/TempFolder.h"

#include <vtkDataArray.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>

namespace corvane::test {

namespace {

const std::string asciiHeader = "ply\nformat ascii 1.0\ncomment by hand\n"
                                "element vertex 4\nproperty float x\nproperty double y\n"
                                "property float z\nproperty uchar quality\n"
                                "element face 2\nproperty uchar flags\n"
                                "property list uchar int vertex_index\nend_header\n";
const std::string asciiValues = "0 0 0 10\n1 0 0 20\n1 1 0.5 30\n0 1 0.5 40\n"
                                "7 3 0 1 2\n7 4 0 1 2 3\n";

vtkSmartPointer<vtkDataSet> read(const std::string& content) {
    const TempFolder folder;
    return scene::PlyFile(folder.write("a.ply", content)).read(0).at(0).mesh;
}

std::string errorOf(const std::string& content) {
    try {
        read(content);
    } catch (const host::HostError& error) {
        return error.what();
    }
    return "no error";
}

std::string bigEndian(float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes.push_back(static_cast<char>((bits >> shift) & 0xFFU));
    }
    return bytes;
}

} // namespace

TEST(Ply, pointsFacesAndOtherNumbersOfThePoints) {
    const auto mesh = read(asciiHeader + asciiValues);
    ASSERT_EQ(mesh->GetNumberOfPoints(), 4);
    std::array<double, 3> point{};
    mesh->GetPoint(2, point.data());
    EXPECT_THAT(point, testing::ElementsAre(1.0, 1.0, 0.5));
    ASSERT_EQ(mesh->GetNumberOfCells(), 2);
    const vtkNew<vtkIdList> corners;
    mesh->GetCellPoints(1, corners);
    ASSERT_EQ(corners->GetNumberOfIds(), 4);
    EXPECT_EQ(corners->GetId(3), 3);
    vtkDataArray* const quality = mesh->GetPointData()->GetArray("quality");
    ASSERT_NE(quality, nullptr);
    EXPECT_EQ(quality->GetTuple1(3), 40.0);
}

TEST(Ply, linesThatEndWithCarriageReturns) {
    std::string content;
    for (const char c : asciiHeader + asciiValues) {
        content += c == '\n' ? "\r\n" : std::string(1, c);
    }
    EXPECT_EQ(read(content)->GetNumberOfCells(), 2);
}

TEST(Ply, bothByteOrders) {
    std::string content = "ply\nformat binary_big_endian 1.0\nelement vertex 3\n"
                          "property float x\nproperty float y\nproperty float z\n"
                          "element face 1\nproperty list uchar ushort vertex_indices\nend_header\n";
    for (const float value : {1.5F, -2.0F, 3.25F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F}) {
        content += bigEndian(value);
    }
    content += std::string("\3\0\2\0\1\0\0", 7);
    const auto mesh = read(content);
    std::array<double, 3> point{};
    mesh->GetPoint(0, point.data());
    EXPECT_THAT(point, testing::ElementsAre(1.5, -2.0, 3.25));
    const vtkNew<vtkIdList> corners;
    mesh->GetCellPoints(0, corners);
    ASSERT_EQ(corners->GetNumberOfIds(), 3);
    EXPECT_EQ(corners->GetId(0), 2);
}

TEST(Ply, damagedFiles) {
    using testing::HasSubstr;
    EXPECT_THAT(errorOf("plx\n"), HasSubstr("it is no PLY file"));
    EXPECT_THAT(errorOf("ply\nformat ascii 1.0\n"), HasSubstr("its header has no end"));
    EXPECT_THAT(errorOf("ply\nformat text 1.0\nend_header\n"), HasSubstr("\"format text 1.0\""));
    EXPECT_THAT(errorOf("ply\nelement vertex -1\nend_header\n"), HasSubstr("element vertex -1"));
    EXPECT_THAT(errorOf("ply\nelement vertex 1\nproperty real x\nend_header\n"),
                HasSubstr("property real x"));
    EXPECT_THAT(errorOf("ply\nformat ascii 1.0\nend_header\n"), HasSubstr("it holds no mesh"));
    EXPECT_THAT(errorOf(asciiHeader + "0 0 0"), HasSubstr("the file ends before its data do"));
    EXPECT_THAT(errorOf(asciiHeader + "0 0 zero 1"), HasSubstr("no number"));
    EXPECT_THAT(errorOf(asciiHeader + "0 0 0 1\n1 0 0 1\n1 1 0 1\n0 1 0 1\n7 3 0 1 4\n7 3 0 1 2\n"),
                HasSubstr("it is damaged"));
    EXPECT_THAT(errorOf("ply\nformat ascii 1.0\nelement vertex 999999999999\nproperty float x\n"
                        "end_header\n1\n"),
                HasSubstr("the file ends before its data do"));
}

} // namespace corvane::test
