// A library that throws while it is loaded.
#include <stdexcept>

namespace {

struct Early {
    Early() { throw std::runtime_error("too early"); }
};
const Early early;

} // namespace
