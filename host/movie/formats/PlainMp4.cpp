#include "host/movie/formats/PlainMp4.h"

#include "host/core/base/HostError.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/OutputContainer.h"

#include <filesystem>
#include <system_error>

namespace corvane::movie {

namespace {

InputHandle openInput(const LibavCheck& check) {
    AVFormatContext* input = nullptr;
    check(avformat_open_input(&input, fileUrl(check.path()).c_str(), av_find_input_format("mp4"),
                              nullptr),
          "reading the pictures back");
    return InputHandle(input);
}

void copyPackets(AVFormatContext& input, OutputContainer& output, const LibavCheck& check) {
    const PacketHandle packet(check.made(av_packet_alloc()));
    for (;;) {
        const int code = av_read_frame(&input, packet.get());
        if (code == AVERROR_EOF) {
            return;
        }
        check(code, "reading the pictures back");
        output.write(packet.get());
        av_packet_unref(packet.get());
    }
}

void copyPlain(const std::string& from, const std::string& to) {
    const LibavCheck fromCheck(from);
    const LibavCheck toCheck(to);
    const InputHandle input = openInput(fromCheck);
    if (input->nb_streams != 1) {
        fromCheck.fail("it has no pictures");
    }
    const AVStream& stream = *input->streams[0];
    StreamShape shape;
    shape.codec = stream.codecpar;
    shape.timeBase = stream.time_base;
    OutputContainer output("mp4", toCheck);
    output.begin(shape, {{"movflags", "+faststart"}});
    copyPackets(*input, output, fromCheck);
    output.finish();
}

} // namespace

std::unique_ptr<host::ScratchFile> rearrangeAsPlainMp4(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return nullptr; // never replace a device or pipe by a regular file
    }
    try {
        auto copy = std::make_unique<host::ScratchFile>(path);
        copyPlain(path, copy->path());
        copy->moveTo(path);
        return copy;
    } catch (const host::HostError&) {
        return nullptr;
    } catch (const std::system_error&) {
        return nullptr;
    }
}

} // namespace corvane::movie
