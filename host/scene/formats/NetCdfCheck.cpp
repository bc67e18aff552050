// Whether a netCDF file is whole.
#include "host/scene/formats/NetCdfCheck.h"

#include "host/scene/formats/ReadingTrial.h"
#include "host/scene/mesh/ReadError.h"

#include <netcdf.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::scene {

namespace {

using Size = std::uint64_t;

class NetCdfFile {
public:
    explicit NetCdfFile(const std::string& path) : m_path(path) {
        check(nc_open(path.c_str(), NC_NOWRITE, &m_id));
    }
    ~NetCdfFile() { nc_close(m_id); }
    NetCdfFile(const NetCdfFile&) = delete;
    NetCdfFile& operator=(const NetCdfFile&) = delete;

    int id() const { return m_id; }
    void check(int code) const {
        if (code != NC_NOERR) {
            throw readError(m_path, std::string("it is no Exodus II file, or a damaged one (") +
                                        nc_strerror(code) + ")");
        }
    }

private:
    std::string m_path;
    int m_id = 0;
};

/// The length that a file of one of the classic formats has at least, by its own table of contents.
/// Those of the other format, HDF5, know it themselves.
class ClassicLength {
public:
    ClassicLength(const NetCdfFile& file, int format)
        : m_file(file),
          m_count(format == NC_FORMAT_CDF5 ? 8 : 4),
          m_offset(format == NC_FORMAT_CLASSIC ? 4 : 8) {}

    Size length() {
        int dimensions = 0;
        int variables = 0;
        int attributes = 0;
        m_file.check(nc_inq(m_file.id(), &dimensions, &variables, &attributes, &m_recordDimension));
        m_length = 4 + m_count; // the mark of the format, and the number of records
        addDimensions(dimensions);
        addAttributes(NC_GLOBAL, attributes);
        m_length += list;
        m_length += m_count;
        for (int variable = 0; variable < variables; ++variable) {
            addVariable(variable);
        }
        return m_length + m_recordCount * m_recordLength;
    }

private:
    static constexpr Size list = 4; ///< the mark of a list, and that of a type
    static constexpr Size padded(Size length) { return (length + 3) / 4 * 4; }

    void addName(const std::string& name) { m_length += m_count + padded(name.size()); }

    void addDimensions(int count) {
        m_length += list + m_count;
        for (int dimension = 0; dimension < count; ++dimension) {
            std::array<char, NC_MAX_NAME + 1> name{};
            std::size_t size = 0;
            m_file.check(nc_inq_dim(m_file.id(), dimension, name.data(), &size));
            addName(name.data());
            m_length += m_count;
            m_sizes.push_back(size);
            if (dimension == m_recordDimension) {
                m_recordCount = size;
            }
        }
    }

    void addAttributes(int variable, int count) {
        m_length += list + m_count;
        for (int attribute = 0; attribute < count; ++attribute) {
            std::array<char, NC_MAX_NAME + 1> name{};
            nc_type type = NC_NAT;
            std::size_t size = 0;
            m_file.check(nc_inq_attname(m_file.id(), variable, attribute, name.data()));
            m_file.check(nc_inq_att(m_file.id(), variable, name.data(), &type, &size));
            addName(name.data());
            m_length += list + m_count + padded(size * sizeOf(type));
        }
    }

    void addVariable(int variable) {
        std::array<char, NC_MAX_NAME + 1> name{};
        std::array<int, NC_MAX_VAR_DIMS> dimensions{};
        nc_type type = NC_NAT;
        int dimensionCount = 0;
        int attributes = 0;
        m_file.check(nc_inq_var(m_file.id(), variable, name.data(), &type, &dimensionCount,
                                dimensions.data(), &attributes));
        addName(name.data());
        m_length += m_count + static_cast<Size>(dimensionCount) * m_count;
        addAttributes(variable, attributes);
        m_length += list + m_count + m_offset;

        Size bytes = sizeOf(type);
        bool isRecord = false;
        for (int i = 0; i < dimensionCount; ++i) {
            const int dimension = dimensions[static_cast<std::size_t>(i)];
            if (dimension == m_recordDimension) {
                isRecord = true;
            } else {
                bytes *= m_sizes[static_cast<std::size_t>(dimension)];
            }
        }
        (isRecord ? m_recordLength : m_length) += padded(bytes);
    }

    Size sizeOf(nc_type type) const {
        std::size_t size = 0;
        m_file.check(nc_inq_type(m_file.id(), type, nullptr, &size));
        return size;
    }

    const NetCdfFile& m_file;
    Size m_count;
    Size m_offset;
    std::vector<Size> m_sizes; ///< of the dimensions
    int m_recordDimension = -1;
    Size m_recordCount = 0;
    Size m_recordLength = 0;
    Size m_length = 0;
};

/// Everything in the file that tells what is in it. The answers do not matter: the HDF5 library
/// crashes on some damaged files, all of them in this, and is to do so in the helper.
void readTableOfContents(const NetCdfFile& file) {
    int variables = 0;
    int attributes = 0;
    file.check(nc_inq(file.id(), nullptr, &variables, &attributes, nullptr));
    for (int variable = NC_GLOBAL; variable < variables; ++variable) {
        std::array<char, NC_MAX_NAME + 1> name{};
        if (variable != NC_GLOBAL) {
            nc_inq_var(file.id(), variable, name.data(), nullptr, nullptr, nullptr, &attributes);
        }
        for (int attribute = 0; attribute < attributes; ++attribute) {
            nc_inq_attname(file.id(), variable, attribute, name.data());
        }
    }
}

bool isConnectivity(const NetCdfFile& file, int variable) {
    std::array<char, NC_MAX_NAME + 1> name{};
    file.check(nc_inq_varname(file.id(), variable, name.data()));
    return std::string_view(name.data()).starts_with("connect");
}

std::size_t valueCount(const NetCdfFile& file, int variable) {
    std::array<int, NC_MAX_VAR_DIMS> dimensions{};
    int count = 0;
    file.check(nc_inq_varndims(file.id(), variable, &count));
    file.check(nc_inq_vardimid(file.id(), variable, dimensions.data()));
    std::size_t values = 1;
    for (int i = 0; i < count; ++i) {
        std::size_t length = 0;
        file.check(nc_inq_dimlen(file.id(), dimensions[static_cast<std::size_t>(i)], &length));
        values *= length;
    }
    return values;
}

/// Nodes of elements are counted from 1.
bool hasSoundElements(const NetCdfFile& file) {
    int nodes = 0;
    std::size_t nodeCount = 0;
    int variables = 0;
    file.check(nc_inq_dimid(file.id(), "num_nodes", &nodes));
    file.check(nc_inq_dimlen(file.id(), nodes, &nodeCount));
    file.check(nc_inq_nvars(file.id(), &variables));
    for (int variable = 0; variable < variables; ++variable) {
        if (!isConnectivity(file, variable)) {
            continue;
        }
        std::vector<long long> ids(valueCount(file, variable));
        file.check(nc_get_var_longlong(file.id(), variable, ids.data()));
        const auto isNode = [nodeCount](long long id) {
            return id >= 1 && static_cast<std::size_t>(id) <= nodeCount;
        };
        if (!std::all_of(ids.begin(), ids.end(), isNode)) {
            return false;
        }
    }
    return true;
}

} // namespace

void checkExodus(const std::string& path) {
    expectHarmless(path, contentsOnly, alwaysUnknown);
    const NetCdfFile file(path);
    readTableOfContents(file);
    float version = 0.0F;
    file.check(nc_get_att_float(file.id(), NC_GLOBAL, "version", &version));
    int format = 0;
    file.check(nc_inq_format(file.id(), &format));
    const bool isClassic =
        format == NC_FORMAT_CLASSIC || format == NC_FORMAT_64BIT_OFFSET || format == NC_FORMAT_CDF5;
    // The last value may be written without its padding.
    if (isClassic && std::filesystem::file_size(path) + 3 < ClassicLength(file, format).length()) {
        throw readError(path, "it is cut off: its last data are missing");
    }
    if (!hasSoundElements(file)) {
        throw readError(path, "it is damaged: elements refer to nodes that are not there");
    }
}

} // namespace corvane::scene
