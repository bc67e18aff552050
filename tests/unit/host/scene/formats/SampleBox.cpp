// The mesh that the samples of all formats hold.
#include "tests/unit/host/scene/formats/SampleBox.h"

namespace corvane::test {

namespace {

constexpr int side = 2;

int pointAt(int x, int y, int z) {
    return x + (side + 1) * (y + (side + 1) * z);
}

} // namespace

std::vector<host::Vec3> boxPoints() {
    std::vector<host::Vec3> points;
    for (int z = 0; z <= side; ++z) {
        for (int y = 0; y <= side; ++y) {
            for (int x = 0; x <= side; ++x) {
                points.push_back({1.0 * x, 1.0 * y, 1.0 * z});
            }
        }
    }
    return points;
}

std::vector<std::array<int, 8>> boxCells() {
    std::vector<std::array<int, 8>> cells;
    for (int z = 0; z < side; ++z) {
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                cells.push_back({pointAt(x, y, z), pointAt(x + 1, y, z), pointAt(x + 1, y + 1, z),
                                 pointAt(x, y + 1, z), pointAt(x, y, z + 1),
                                 pointAt(x + 1, y, z + 1), pointAt(x + 1, y + 1, z + 1),
                                 pointAt(x, y + 1, z + 1)});
            }
        }
    }
    return cells;
}

} // namespace corvane::test
