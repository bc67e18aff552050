#include "host/movie/libav/OutputContainer.h"

#include <utility>

namespace corvane::movie {

std::string fileUrl(const std::string& path) {
    return "file:" + path;
}

OutputContainer::OutputContainer(const std::string& container, LibavCheck check)
    : m_check(std::move(check)) {
    AVFormatContext* context = nullptr;
    m_check(avformat_alloc_output_context2(&context, nullptr, container.c_str(),
                                           fileUrl(m_check.path()).c_str()),
            "choosing a file format");
    m_context.reset(context);
    // Flush each packet or fragment at once: a full disk is noticed early, and what has been
    // written survives if the process is killed.
    m_context->flags |= AVFMT_FLAG_FLUSH_PACKETS;
}

bool OutputContainer::keepsHeaderApart() const {
    return (m_context->oformat->flags & AVFMT_GLOBALHEADER) != 0;
}

void OutputContainer::begin(const StreamShape& shape, const LibavOptions& options) {
    addStream(shape);
    m_check(avio_open(&m_context->pb, m_context->url, AVIO_FLAG_WRITE), "making the file");
    LibavDictionary dictionary(options, m_check);
    m_check(avformat_write_header(m_context.get(), dictionary.get()),
            "writing the file's beginning");
    dictionary.requireAllUsed(m_check);
    avio_flush(m_context->pb);
    m_check(m_context->pb->error, "writing the file's beginning");
}

void OutputContainer::addStream(const StreamShape& shape) {
    m_stream = m_check.made(avformat_new_stream(m_context.get(), nullptr));
    m_check(avcodec_parameters_copy(m_stream->codecpar, shape.codec), "describing the pictures");
    m_stream->codecpar->codec_tag = 0; // let the container choose its own
    m_stream->sample_aspect_ratio = m_stream->codecpar->sample_aspect_ratio;
    m_stream->time_base = shape.timeBase;
    m_stream->avg_frame_rate = shape.rate;
    m_timeBase = shape.timeBase;
}

void OutputContainer::write(AVPacket* packet) {
    packet->stream_index = m_stream->index;
    av_packet_rescale_ts(packet, m_timeBase, m_stream->time_base);
    m_check(av_write_frame(m_context.get(), packet), "writing pictures to the file");
}

void OutputContainer::finish() {
    m_check(av_write_trailer(m_context.get()), "writing the file's end");
    m_check(avio_closep(&m_context->pb), "closing the file");
}

} // namespace corvane::movie
