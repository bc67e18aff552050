// Movies on their way to the disk: looked at, or made to fail.
#include "tests/app/WatchedMovies.h"

#include <utility>

namespace corvane::test {

class WatchedMovies::Writer : public host::MovieWriter {
public:
    Writer(WatchedMovies& owner, std::unique_ptr<host::MovieWriter> writer)
        : m_owner(owner), m_writer(std::move(writer)) {}

    void add(host::Picture picture) override {
        if (m_owner.onPicture) {
            m_owner.onPicture(m_owner.m_pictures);
        }
        ++m_owner.m_pictures;
        m_writer->add(std::move(picture));
    }
    void finish() override { m_writer->finish(); }

private:
    WatchedMovies& m_owner;
    std::unique_ptr<host::MovieWriter> m_writer;
};

std::unique_ptr<host::MovieWriter> WatchedMovies::open(const host::MovieRequest& request) {
    m_pictures = 0;
    return std::make_unique<Writer>(*this, m_writers.open(request));
}

} // namespace corvane::test
