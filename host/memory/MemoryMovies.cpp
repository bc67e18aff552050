// Movies that are counted instead of encoded.
#include "host/memory/MemoryMovies.h"

#include "host/core/base/HostError.h"

#include <fstream>
#include <utility>

namespace corvane::memory {

class MemoryMovies::Writer : public host::MovieWriter {
public:
    Writer(MemoryMovie& movie, Script& script)
        : m_movie(movie), m_script(script), m_file(movie.request.path) {
        if (!m_file) {
            throw host::HostError("Cannot write " + movie.request.path + ".");
        }
    }
    ~Writer() override { m_movie.abandoned = !m_movie.finished; }

    void add(host::Picture picture) override {
        if (m_script.failAt > 0 && --m_script.failAt == 0) {
            std::rethrow_exception(m_script.pictureFailure);
        }
        if (picture.width != m_movie.request.width || picture.height != m_movie.request.height) {
            throw host::HostError("The picture has another size than the movie.");
        }
        ++m_movie.pictures;
    }

    void finish() override {
        if (std::exchange(m_script.failFinish, false)) {
            throw host::HostError("The movie could not be completed.");
        }
        m_file << m_movie.pictures << " pictures\n";
        m_file.close();
        m_movie.finished = true;
    }

private:
    MemoryMovie& m_movie;
    Script& m_script;
    std::ofstream m_file;
};

void MemoryMovies::failOpen(std::string message) {
    m_script.failOpen = std::move(message);
}

void MemoryMovies::failAt(std::size_t k) {
    failAt(k, std::make_exception_ptr(host::HostError("The picture could not be encoded.")));
}

void MemoryMovies::failAt(std::size_t k, std::exception_ptr failure) {
    m_script.failAt = k;
    m_script.pictureFailure = std::move(failure);
}

std::unique_ptr<host::MovieWriter> MemoryMovies::open(const host::MovieRequest& request) {
    if (!m_script.failOpen.empty()) {
        throw host::HostError(std::exchange(m_script.failOpen, {}));
    }
    m_movies.push_back({.request = request});
    return std::make_unique<Writer>(m_movies.back(), m_script);
}

} // namespace corvane::memory
