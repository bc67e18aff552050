#include "host/movie/formats/Mpeg4Movie.h"

#include "host/movie/formats/PlainMp4.h"

namespace corvane::movie {

Mpeg4Movie::Mpeg4Movie(const host::MovieRequest& request, const VideoSettings& settings)
    : m_path(request.path), m_file(request, settings) {}

void Mpeg4Movie::finish() {
    m_file.finish();
    m_plain = rearrangeAsPlainMp4(m_path);
}

} // namespace corvane::movie
