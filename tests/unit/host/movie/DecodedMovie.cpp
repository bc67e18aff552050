// Reads movies with ffprobe and ffmpeg.
#include "tests/unit/host/movie/DecodedMovie.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace corvane::movie_test {

namespace {

std::string quotedForShell(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

/// What the command writes to standard output. Throws when it fails.
std::string outputOf(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) {
        throw std::runtime_error("cannot run: " + command);
    }
    std::string output;
    std::array<char, 65536> part{};
    while (const std::size_t bytes = std::fread(part.data(), 1, part.size(), pipe)) {
        output.append(part.data(), bytes);
    }
    if (pclose(pipe) != 0) {
        throw std::runtime_error("failed: " + command);
    }
    return output;
}

std::map<std::string, std::string> parsed(const std::string& keysAndValues) {
    std::map<std::string, std::string> values;
    std::istringstream lines(keysAndValues);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            values[line.substr(0, equals)] = line.substr(equals + 1);
        }
    }
    return values;
}

/// 0 for what ffprobe does not know ("N/A").
template <typename Number>
Number numberOr0(const std::string& text) {
    Number number{};
    std::istringstream(text) >> number;
    return number;
}

} // namespace

DecodedMovie::DecodedMovie(std::string path, MovieEnd end) : m_path(std::move(path)), m_end(end) {
    auto values = parsed(
        outputOf(std::string(CORVANE_FFPROBE) +
                 " -v error -select_streams v:0 -count_frames -show_streams -of default=nw=1 -i " +
                 quotedForShell("file:" + m_path)));
    width = numberOr0<int>(values["width"]);
    height = numberOr0<int>(values["height"]);
    frames = numberOr0<long>(values["nb_read_frames"]);
    framesSaid = numberOr0<long>(values["nb_frames"]);
    const std::string rate = values["r_frame_rate"];
    rateNumerator = numberOr0<long>(rate);
    rateDenominator = numberOr0<long>(rate.substr(rate.find('/') + 1));
    start = numberOr0<double>(values["start_time"]);
    duration = numberOr0<double>(values["duration"]);
    codec = values["codec_name"];
    profile = values["profile"];
    pixelFormat = values["pix_fmt"];
    colors = values["color_range"] + " " + values["color_space"] + " " + values["color_primaries"] +
             " " + values["color_transfer"];
    // ffmpeg of itself converts as if colours shared by two pixels belonged between them.
    m_colors = values["chroma_location"] == "left" ? "in_h_chr_pos=0:" : "";
    // Where nothing is said, players take high pictures for BT.709, but ffmpeg takes none.
    if (pixelFormat == "yuv420p" && values["color_space"] == "unknown" && height > 576) {
        m_colors += "in_color_matrix=bt709:";
    }
    if (frames < 1) {
        throw std::runtime_error("no picture in " + m_path);
    }
}

host::Picture DecodedMovie::picture(long n) const {
    return onePicture(n, "null");
}

host::Picture DecodedMovie::pictureIn256Colors(long n) const {
    return onePicture(n, "split[a][b];[a]palettegen=reserve_transparent=0:stats_mode=single[p];"
                         "[b][p]paletteuse=new=1:dither=none");
}

host::Picture DecodedMovie::onePicture(long n, const std::string& filter) const {
    auto found = decode("select='eq(n," + std::to_string(n) + ")'," + filter);
    if (found.size() != 1) {
        throw std::runtime_error("no picture " + std::to_string(n) + " in " + m_path);
    }
    return std::move(found.front());
}

std::vector<host::Picture> DecodedMovie::pictures() const {
    return decode("null");
}

std::vector<host::Picture> DecodedMovie::decode(const std::string& filter) const {
    // Any damage ends ffmpeg with an error; no picture is repeated or dropped to fit a rate.
    const std::string bytes =
        outputOf(std::string(CORVANE_FFMPEG) + " -nostdin -v error " +
                 (m_end == MovieEnd::Complete ? "-xerror -err_detect explode" : "") + " -i " +
                 quotedForShell("file:" + m_path) + " -map 0:v:0 -vf " +
                 quotedForShell(filter + ",scale=" + m_colors +
                                "flags=bicubic+accurate_rnd+full_chroma_int") +
                 " -vsync passthrough -pix_fmt rgba -f rawvideo -");
    const std::size_t size =
        4U * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::vector<host::Picture> pictures;
    for (std::size_t at = 0; at + size <= bytes.size(); at += size) {
        host::Picture& picture = pictures.emplace_back();
        picture.width = width;
        picture.height = height;
        picture.rgba.assign(bytes.data() + at, bytes.data() + at + size);
    }
    return pictures;
}

std::vector<double> DecodedMovie::times() const {
    std::istringstream lines(
        outputOf(std::string(CORVANE_FFPROBE) +
                 " -v error -select_streams v:0 -show_entries frame=best_effort_timestamp_time"
                 " -of default=nw=1:nk=1 -i " +
                 quotedForShell("file:" + m_path)));
    std::vector<double> found;
    for (double time = 0.0; lines >> time;) {
        found.push_back(time);
    }
    return found;
}

double psnr(const host::Picture& a, const host::Picture& b) {
    if (a.width != b.width || a.height != b.height || a.rgba.size() != b.rgba.size()) {
        throw std::runtime_error("pictures of different sizes cannot be compared");
    }
    double squares = 0.0;
    for (std::size_t i = 0; i < a.rgba.size(); ++i) {
        const double difference = double{1} * a.rgba[i] - b.rgba[i];
        squares += i % 4 == 3 ? 0.0 : difference * difference;
    }
    if (squares == 0.0) {
        return std::numeric_limits<double>::infinity();
    }
    const double values = 3.0 * a.width * a.height;
    return 10.0 * std::log10(255.0 * 255.0 * values / squares);
}

host::Picture cropped(const host::Picture& picture, int width, int height) {
    host::Picture part;
    part.width = width;
    part.height = height;
    for (int y = 0; y < height; ++y) {
        part.rgba.insert(part.rgba.end(), picture.row(y),
                         picture.row(y) + std::ptrdiff_t{4} * width);
    }
    return part;
}

double lowestPsnr(const DecodedMovie& movie, const std::vector<host::Picture>& originals) {
    const std::vector<host::Picture> pictures = movie.pictures();
    if (pictures.size() != originals.size()) {
        throw std::runtime_error("the movie has " + std::to_string(pictures.size()) +
                                 " pictures instead of " + std::to_string(originals.size()));
    }
    double lowest = std::numeric_limits<double>::infinity();
    for (std::size_t n = 0; n < originals.size(); ++n) {
        const host::Picture& original = originals[n];
        lowest =
            std::min(lowest, psnr(cropped(pictures[n], original.width, original.height), original));
    }
    return lowest;
}

} // namespace corvane::movie_test
