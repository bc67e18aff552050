// A library that ends the program while it is loaded, with a signal.
#include <cstdlib>

namespace {

struct Early {
    Early() { std::abort(); }
};
const Early early;

} // namespace
