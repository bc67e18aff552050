#include "host/scene/formats/legacy/LegacyCheck.h"

#include "host/core/base/Text.h"
#include "host/scene/formats/legacy/LegacyWords.h"

#include <vtkCellType.h>

#include <array>
#include <functional>
#include <map>
#include <optional>

namespace corvane::scene {

namespace {

constexpr std::uint64_t mostPoints = std::uint64_t{1} << 40U;
/// Of a mesh whose points are not in the file.
constexpr std::uint64_t mostBarePoints = std::uint64_t{1} << 28U;

class LegacyWalk {
public:
    explicit LegacyWalk(const std::string& path) : m_words(path) {}

    void walk() {
        m_words.readHeader();
        if (m_words.keyword() != "dataset") {
            throw LegacyStrange();
        }
        m_kind = m_words.keyword();
        for (std::string keyword = m_words.keyword(); !keyword.empty();
             keyword = m_words.keyword()) {
            step(keyword);
        }
        compare();
    }

private:
    using Step = void (LegacyWalk::*)();

    void step(const std::string& keyword) {
        static const std::map<std::string, std::map<std::string, Step>> ofKinds{
            {"unstructured_grid",
             {{"points", &LegacyWalk::points},
              {"cells", &LegacyWalk::cells},
              {"cell_types", &LegacyWalk::cellTypes}}},
            {"polydata",
             {{"points", &LegacyWalk::points},
              {"vertices", &LegacyWalk::cells},
              {"lines", &LegacyWalk::cells},
              {"polygons", &LegacyWalk::cells},
              {"triangle_strips", &LegacyWalk::cells}}},
            {"structured_points",
             {{"dimensions", &LegacyWalk::dimensions},
              {"origin", &LegacyWalk::threeNumbers},
              {"spacing", &LegacyWalk::threeNumbers},
              {"aspect_ratio", &LegacyWalk::threeNumbers}}},
            {"structured_grid",
             {{"dimensions", &LegacyWalk::dimensions}, {"points", &LegacyWalk::points}}},
            {"rectilinear_grid",
             {{"dimensions", &LegacyWalk::dimensions},
              {"x_coordinates", &LegacyWalk::coordinates},
              {"y_coordinates", &LegacyWalk::coordinates},
              {"z_coordinates", &LegacyWalk::coordinates}}}};
        static const std::map<std::string, Step> ofValues{
            {"scalars", &LegacyWalk::scalars},
            {"color_scalars", &LegacyWalk::colors},
            {"lookup_table", &LegacyWalk::colorTable},
            {"vectors", &LegacyWalk::vectors},
            {"normals", &LegacyWalk::vectors},
            {"tensors", &LegacyWalk::tensors},
            {"tensors6", &LegacyWalk::symmetricTensors},
            {"texture_coordinates", &LegacyWalk::textureCoordinates},
            {"global_ids", &LegacyWalk::single},
            {"pedigree_ids", &LegacyWalk::single},
            {"edge_flags", &LegacyWalk::single}};
        m_keyword = keyword;
        if (keyword == "point_data" || keyword == "cell_data") {
            m_tuples = m_words.count();
        } else if (keyword == "field") {
            field();
        } else if (m_tuples) {
            take(ofValues, keyword);
        } else {
            const auto kind = ofKinds.find(m_kind);
            if (kind == ofKinds.end()) {
                throw LegacyStrange();
            }
            take(kind->second, keyword);
        }
    }

    void take(const std::map<std::string, Step>& steps, const std::string& keyword) {
        const auto found = steps.find(keyword);
        if (found == steps.end()) {
            throw LegacyStrange();
        }
        (this->*found->second)();
    }

    /// What is there twice replaces what VTK has begun to use.
    void expectFirst(bool isKnown) const {
        if (isKnown) {
            throw LegacyStrange();
        }
    }

    void points() {
        expectFirst(m_points.has_value());
        m_points = m_words.count();
        const std::string type = m_words.word();
        m_words.skipArray(type, *m_points, 3);
    }

    void dimensions() {
        expectFirst(m_dimensions.has_value());
        m_dimensions.emplace();
        std::uint64_t product = 1;
        for (std::uint64_t& dimension : *m_dimensions) {
            dimension = m_words.count();
            product = cappedProduct(product, dimension);
            if (dimension > INT32_MAX || product > mostPoints) {
                refuse("its dimensions are larger than can be");
            }
        }
    }

    void threeNumbers() { m_words.skipValues(3, 0); }

    void coordinates() {
        const std::size_t axis = static_cast<std::size_t>(m_keyword.front() - 'x');
        const std::uint64_t count = m_words.count();
        if (!m_dimensions || (*m_dimensions)[axis] != count) {
            refuse("its coordinates are not as many as its dimensions say");
        }
        m_coordinates |= 1U << axis;
        const std::string type = m_words.word();
        m_words.skipArray(type, count, 1);
    }

    void cells() {
        expectFirst(m_hasCells[m_keyword]);
        m_hasCells[m_keyword] = true;
        const std::uint64_t count = m_words.count();
        const std::uint64_t size = m_words.count();
        m_words.version() >= 50 ? cellArrays(count, size) : cellList(count, size);
    }

    /// One number more than there are cells, and the points of all cells.
    void cellArrays(std::uint64_t offsets, std::uint64_t points) {
        if (offsets == 0) {
            return;
        }
        m_cells = offsets - 1;
        for (const auto& [name, size] :
             {std::pair{"offsets", offsets}, std::pair{"connectivity", points}}) {
            if (m_words.keyword() != name) {
                throw LegacyStrange();
            }
            const std::string type = m_words.word();
            m_words.skipArray(type, size, 1);
        }
    }

    /// For each cell the number of its points, and these.
    void cellList(std::uint64_t count, std::uint64_t size) {
        m_cells = count;
        std::uint64_t found = 0;
        m_words.walkIntegers(size, [&](std::int64_t points) {
            if (points < 0) {
                refuse("a cell has a negative number of points");
            }
            ++found;
            return static_cast<std::uint64_t>(points);
        });
        if (found != count) {
            refuse("its cells are not as many as it says");
        }
    }

    void cellTypes() {
        expectFirst(m_types.has_value());
        m_types = m_words.count();
        m_words.walkIntegers(*m_types, [&](std::int64_t type) {
            // VTK walks through the faces of the first, and renumbers the points of the others, of
            // which it trusts to have as many as it thinks.
            const bool isOld = m_words.version() < 51;
            if (type == VTK_POLYHEDRON || (isOld && type >= VTK_HIGHER_ORDER_EDGE)) {
                m_isTrusted = true;
            }
            return 0;
        });
    }

    void field() {
        m_words.word();
        const std::uint64_t arrays = m_words.count();
        for (std::uint64_t i = 0; i < arrays; ++i) {
            if (m_words.word() == "NULL_ARRAY") {
                continue;
            }
            const std::uint64_t components = m_words.count();
            const std::uint64_t tuples = m_words.count();
            array(m_words.word(), tuples, components);
        }
    }

    void array(const std::string& type, std::uint64_t tuples, std::uint64_t components) {
        constexpr std::uint64_t mostComponents = 1U << 16U;
        if (components == 0 || components > mostComponents) {
            throw LegacyStrange();
        }
        m_hasValues = true;
        m_words.skipArray(type, tuples, components);
    }

    void scalars() {
        m_words.word();
        const std::string type = m_words.word();
        std::uint64_t components = 1;
        std::string keyword = m_words.keyword();
        if (keyword != "lookup_table") {
            components = host::parsedNumber<std::uint64_t>(keyword).value_or(0);
            keyword = m_words.keyword();
        }
        if (keyword != "lookup_table") {
            throw LegacyStrange();
        }
        m_words.word();
        array(type, *m_tuples, components);
    }

    void colors() {
        m_words.word();
        const std::uint64_t components = m_words.count();
        // VTK counts these values in an int.
        if (cappedProduct(components, *m_tuples) > INT32_MAX) {
            throw LegacyStrange();
        }
        array(m_words.isText() ? "float" : "unsigned_char", *m_tuples, components);
    }

    void colorTable() {
        m_words.word();
        const std::uint64_t size = m_words.count();
        constexpr std::uint64_t channels = 4;
        if (size > INT32_MAX / channels) {
            refuse("its table of colours is larger than can be");
        }
        m_words.skipValues(channels * size, channels * size);
    }

    void named(std::uint64_t components) {
        m_words.word();
        array(m_words.word(), *m_tuples, components);
    }
    void vectors() { named(3); }
    void tensors() { named(9); }
    void symmetricTensors() { named(6); }
    void single() { named(1); }

    void textureCoordinates() {
        m_words.word();
        const std::uint64_t components = m_words.count();
        array(m_words.word(), *m_tuples, components);
    }

    /// What only all of the file tells.
    void compare() const {
        if (m_isTrusted || (m_types && !m_cells)) {
            throw LegacyStrange();
        }
        if (m_types && *m_types != *m_cells) {
            refuse("it has not as many types of cells as cells");
        }
        if (m_dimensions) {
            compareDimensions();
        } else if (m_kind.starts_with("structured") || m_kind.starts_with("rectilinear")) {
            throw LegacyStrange();
        }
    }

    void compareDimensions() const {
        const std::uint64_t points = (*m_dimensions)[0] * (*m_dimensions)[1] * (*m_dimensions)[2];
        if (m_kind == "structured_grid" && m_points.value_or(0) != points) {
            refuse("its points are not as many as its dimensions say");
        }
        constexpr unsigned allCoordinates = 7;
        if (m_kind == "rectilinear_grid" && m_coordinates != allCoordinates) {
            throw LegacyStrange();
        }
        if (m_kind != "structured_grid" && !m_hasValues && points > mostBarePoints) {
            refuse("its dimensions are larger than can be");
        }
    }

    LegacyWords m_words;
    std::string m_kind;
    std::string m_keyword;
    std::optional<std::uint64_t> m_tuples; ///< of the values that are being told
    std::optional<std::uint64_t> m_points;
    std::optional<std::uint64_t> m_cells;
    std::optional<std::uint64_t> m_types;
    std::optional<std::array<std::uint64_t, 3>> m_dimensions;
    std::map<std::string, bool> m_hasCells;
    unsigned m_coordinates = 0; ///< a bit for each direction
    bool m_hasValues = false;
    bool m_isTrusted = false; ///< VTK trusts something that was not looked at
};

} // namespace

FileLook checkLegacyFile(const std::string& path) {
    try {
        LegacyWalk(path).walk();
        return {Certainty::Harmless};
    } catch (const LegacyStrange&) {
        return {Certainty::Unknown};
    }
}

} // namespace corvane::scene
