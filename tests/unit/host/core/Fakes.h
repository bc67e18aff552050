// The outside of the core, in memory: what was asked of it is kept for the tests.
#pragma once

#include "host/core/Host.h"
#include "host/core/base/HostError.h"

#include <fstream>
#include <utility>

namespace corvane::host::fakes {

class FakeRenderer : public Renderer {
public:
    std::vector<std::string>* log = nullptr;
    std::vector<PictureRequest> requests;
    int largest = 16384;
    std::size_t failAt = 0; ///< number of the picture that fails, from 1 on; 0: none

    Picture draw(const Page& /*page*/, const PictureRequest& request) override {
        requests.push_back(request);
        if (log != nullptr) {
            log->push_back("draw");
        }
        if (requests.size() == failAt) {
            throw HostError("The picture cannot be drawn.");
        }
        return {request.width, request.height,
                std::vector<std::uint8_t>(static_cast<std::size_t>(request.width) *
                                          static_cast<std::size_t>(request.height) * 4U)};
    }
    int largestSize() const override { return largest; }
};

class FakeScreen : public Screen {
public:
    std::vector<bool> presented; ///< allFrames of each picture
    bool fails = false;

    void present(const Page& /*page*/, bool allFrames) override {
        presented.push_back(allFrames);
        if (fails) {
            throw HostError("The screen is gone.");
        }
    }
};

class FakeReader : public DataReader {
public:
    std::shared_ptr<DataSet> data = std::make_shared<DataSet>();
    std::vector<std::vector<std::string>> calls;
    std::string failure;

    std::vector<DataFormat> formats() const override { return {}; }
    std::shared_ptr<const DataSet> read(const std::vector<std::string>& files) override {
        calls.push_back(files);
        if (!failure.empty()) {
            throw HostError(failure);
        }
        return data;
    }
};

/// Writes one byte a picture to a real file.
class FakeMovies : public MovieWriters {
public:
    std::vector<std::string> log;
    std::vector<MovieRequest> requests;
    std::string failOpen;
    std::string failFinish;
    std::size_t failAdd = 0; ///< number of the picture that fails, from 1 on; 0: none
    bool throwsNothingKnown = false;

    std::unique_ptr<MovieWriter> open(const MovieRequest& request) override {
        log.push_back("open");
        requests.push_back(request);
        if (!failOpen.empty()) {
            throw HostError(failOpen);
        }
        return std::make_unique<Writer>(*this, request.path);
    }

private:
    class Writer : public MovieWriter {
    public:
        Writer(FakeMovies& movies, const std::string& path)
            : m_movies(movies), m_file(path, std::ios::binary | std::ios::trunc) {}
        ~Writer() override { m_movies.log.push_back("close"); }

        void add(Picture /*picture*/) override {
            m_movies.log.push_back("add");
            m_file << 'p' << std::flush;
            if (m_movies.throwsNothingKnown) {
                throw 7;
            }
            if (++m_count == m_movies.failAdd) {
                throw HostError("The disk is full.");
            }
        }
        void finish() override {
            m_movies.log.push_back("finish");
            if (!m_movies.failFinish.empty()) {
                throw HostError(m_movies.failFinish);
            }
            m_file << 'e' << std::flush;
        }

    private:
        FakeMovies& m_movies;
        std::ofstream m_file;
        std::size_t m_count = 0;
    };
};

class FakeStatus : public StatusDisplay {
public:
    std::vector<std::string> log;
    bool stop = false;

    void start(const std::string& text, bool showStop, bool showProgress) override {
        log.push_back("start " + text + (showStop ? " stop" : "") + (showProgress ? " bar" : ""));
    }
    void setText(const std::string& text) override { log.push_back("text " + text); }
    void setPercent(int percent) override { log.push_back(std::to_string(percent)); }
    void finish() override { log.push_back("finish"); }
    bool isStopRequested() override { return stop; }
};

class FakeDialogs : public UserPrompts {
public:
    std::vector<std::string> errors;

    void showError(const std::string& message) override { errors.push_back(message); }
    void showNotice(const std::string& /*message*/) override {}
    bool askYesNo(const std::string& /*question*/) override { return false; }
    std::optional<std::string> askFileName(bool /*forWriting*/, const std::string& /*fileType*/,
                                           const std::string& /*defaultName*/,
                                           const std::string& /*filter*/) override {
        return std::nullopt;
    }
    bool showHelp(const std::string& /*page*/) override { return false; }
};

class FakeIdleTimer : public IdleTimer {
public:
    int requests = 0;

    void requestIdle() override { ++requests; }
};

/// An application with all its ports.
class FakePictures : public PictureFiles {
public:
    void write(const Picture& picture, const std::string& path) override {
        if (!failure.empty()) {
            throw HostError(failure);
        }
        std::ofstream(path) << picture.width << " x " << picture.height;
    }
    std::string failure;
};

struct FakeHost {
    FakeRenderer renderer;
    FakeReader reader;
    FakeMovies movies;
    FakeStatus status;
    FakeDialogs prompts;
    FakePictures pictures;
    FakeScreen screen;
    FakeIdleTimer idleTimer;
    Host program{Ports{renderer, reader, movies, status, prompts, pictures, &screen, &idleTimer}};
    Session& session = program.session();
};

/// A box of volume cells with a scalar p and a vector U.
inline std::shared_ptr<DataSet> volumeData() {
    auto data = std::make_shared<DataSet>();
    data->blocks = {{"internal", 3}};
    data->zones = {{0, 0.0, 0, true}};
    data->variables = {{"p", 1, -2.0, 4.0}, {"U", 3, 0.0, 8.0}};
    data->bounds = {{0, 0, 0}, {4, 2, 1}};
    return data;
}

} // namespace corvane::host::fakes
