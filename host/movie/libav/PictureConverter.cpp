#include "host/movie/libav/PictureConverter.h"

#include "host/movie/libav/PictureCheck.h"

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cstring>

namespace corvane::movie {

namespace {

/// The size rounded up to a multiple of 2^shift.
int roundedUp(int size, int shift) {
    const int group = 1 << shift;
    return (size + group - 1) / group * group;
}

/// Fills up a row by repeating the last of its pixels.
void repeatLastPixel(std::uint8_t* row, std::ptrdiff_t pixels, std::ptrdiff_t wanted) {
    for (std::ptrdiff_t x = pixels; x < wanted; ++x) {
        std::memcpy(row + 4 * x, row + 4 * (pixels - 1), 4);
    }
}

} // namespace

PictureConverter::PictureConverter(int width, int height, const FrameKind& kind,
                                   const LibavCheck& check)
    : m_check(check), m_width(width), m_height(height), m_kind(kind) {
    int shiftX = 0;
    int shiftY = 0;
    check(av_pix_fmt_get_chroma_sub_sample(kind.pixelFormat, &shiftX, &shiftY),
          "choosing a pixel format");
    const int frameWidth = roundedUp(width, shiftX);
    const int frameHeight = roundedUp(height, shiftY);
    m_source = makeFrame(frameWidth, frameHeight, AV_PIX_FMT_RGBA);
    m_frame = makeFrame(frameWidth, frameHeight, kind.pixelFormat);
    makeScaler();
}

FrameHandle PictureConverter::makeFrame(int width, int height, AVPixelFormat format) const {
    FrameHandle frame(m_check.made(av_frame_alloc()));
    frame->width = width;
    frame->height = height;
    frame->format = format;
    m_check(av_frame_get_buffer(frame.get(), 0), "making room for a picture");
    return frame;
}

void PictureConverter::set(const char* name, std::int64_t value) {
    m_check(av_opt_set_int(m_scaler.get(), name, value, 0), "setting up the colours");
}

void PictureConverter::makeScaler() {
    m_scaler.reset(m_check.made(sws_alloc_context()));
    set("srcw", m_source->width);
    set("srch", m_source->height);
    set("src_format", m_source->format);
    set("src_range", 1);
    set("dstw", m_frame->width);
    set("dsth", m_frame->height);
    set("dst_format", m_frame->format);
    set("dst_range", rangeOf(m_kind.colors) == AVCOL_RANGE_JPEG ? 1 : 0);
    placeSharedColors();
    // Without full chroma input, swscale first averages pairs of pixels, which places chroma
    // between them whatever the positions say.
    set("sws_flags", SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INP);
    m_check(sws_init_context(m_scaler.get(), nullptr, nullptr), "setting up the colours");
    chooseMatrix();
}

void PictureConverter::placeSharedColors() {
    if (m_kind.pixelFormat != AV_PIX_FMT_YUV420P) {
        return; // no chroma subsampling
    }
    // Where the encoders' streams say: at the left pixel of two, between two rows.
    set("dst_h_chr_pos", 0);
    set("dst_v_chr_pos", 128);
}

void PictureConverter::chooseMatrix() {
    const AVColorSpace matrix = matrixOf(m_kind.colors, m_height);
    if (matrix == AVCOL_SPC_RGB) {
        return; // copied, not converted
    }
    const int* coefficients =
        sws_getCoefficients(matrix == AVCOL_SPC_BT709 ? SWS_CS_ITU709 : SWS_CS_ITU601);
    const int one = 1 << 16; // of the fixed-point contrast and saturation
    const int fullRange = rangeOf(m_kind.colors) == AVCOL_RANGE_JPEG ? 1 : 0;
    m_check(sws_setColorspaceDetails(m_scaler.get(), coefficients, 1, coefficients, fullRange, 0,
                                     one, one),
            "setting up the colours");
}

void PictureConverter::copyPadded(const host::Picture& picture) {
    const std::size_t rowBytes = 4U * static_cast<std::size_t>(m_width);
    for (int y = 0; y < m_source->height; ++y) {
        std::uint8_t* row = m_source->data[0] + std::ptrdiff_t{y} * m_source->linesize[0];
        const int from = std::min(y, m_height - 1);
        std::memcpy(row, picture.row(m_kind.bottomUp ? m_height - 1 - from : from), rowBytes);
        repeatLastPixel(row, m_width, m_source->width);
    }
}

AVFrame* PictureConverter::convert(const host::Picture& picture) {
    checkPicture(picture, m_width, m_height, m_check);
    copyPadded(picture);
    // The encoder may still hold the previous frame.
    m_check(av_frame_make_writable(m_frame.get()), "making room for a picture");
    m_check(sws_scale(m_scaler.get(), m_source->data, m_source->linesize, 0, m_source->height,
                      m_frame->data, m_frame->linesize),
            "converting a picture");
    return m_frame.get();
}

} // namespace corvane::movie
