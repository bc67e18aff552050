// A library that is no add-on.
extern "C" __attribute__((visibility("default"))) int somethingElse() {
    return 7;
}
