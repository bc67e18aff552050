// A movie file as the ffmpeg programs, which know nothing of our writer, see it.
#pragma once

#include "host/core/ports/Picture.h"

#include <string>
#include <vector>

namespace corvane::movie_test {

/// Whether a movie may end in the middle of a picture.
enum class MovieEnd { Complete, CutOff };

class DecodedMovie {
public:
    /// Decodes the movie once to count its pictures. Throws std::runtime_error when that fails.
    explicit DecodedMovie(std::string path, MovieEnd end = MovieEnd::Complete);

    int width = 0;          ///< pixels
    int height = 0;         ///< pixels
    long frames = 0;        ///< pictures that can be decoded
    long framesSaid = 0;    ///< pictures that the file's index says it has; 0 when it does not say
    long rateNumerator = 0; ///< pictures per second, as a fraction
    long rateDenominator = 1; ///< pictures per second, as a fraction
    double start = 0.0;       ///< seconds; the time of the first picture
    double duration = 0.0;    ///< seconds
    std::string codec;        ///< ffmpeg's name, such as "h264"
    std::string profile;      ///< such as "High"
    std::string pixelFormat;  ///< ffmpeg's name, such as "yuv420p"
    std::string colors;       ///< range, matrix, primaries and transfer: "tv bt709 bt709 bt709"

    /// Picture n, from 0. Throws std::runtime_error when there is none.
    host::Picture picture(long n) const;
    /// All pictures, decoded at once.
    std::vector<host::Picture> pictures() const;
    /// Picture n in 256 colours of its own that ffmpeg chose, without dithering.
    host::Picture pictureIn256Colors(long n) const;
    /// When each picture is shown, in seconds.
    std::vector<double> times() const;

private:
    host::Picture onePicture(long n, const std::string& filter) const;
    std::vector<host::Picture> decode(const std::string& filter) const;

    std::string m_path;
    MovieEnd m_end;
    std::string m_colors; ///< options of ffmpeg's scale filter
};

/// Peak signal-to-noise ratio in dB over red, green and blue: infinite for equal pictures. Throws
/// std::runtime_error when the sizes differ.
double psnr(const host::Picture& a, const host::Picture& b);

/// The left upper part of a picture.
host::Picture cropped(const host::Picture& picture, int width, int height);

/// The lowest psnr() of the movie's pictures to the originals, in their order. Where the movie is
/// larger (padded) its left upper part counts. Throws std::runtime_error when their numbers differ.
double lowestPsnr(const DecodedMovie& movie, const std::vector<host::Picture>& originals);

} // namespace corvane::movie_test
