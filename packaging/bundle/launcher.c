/* bin/corvane of the bundle: starts the program with the C++ library that it needs.
 *
 * Drivers of the system are loaded into the program and may need a newer C++ library than the one
 * that came with it; a system may also have an older one, or none. A process has only one, so that
 * it is chosen before the program starts. This file needs nothing but the C library. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <limits.h>
#include <link.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static const char cxxLibrary[] = "libstdc++.so.6";

/* The folder that holds bin/corvane's folder. 0 when it cannot be told. */
static int findBundle(char* folder, size_t size) {
    const ssize_t length = readlink("/proc/self/exe", folder, size - 1);
    if (length <= 0) {
        return 0;
    }
    folder[length] = '\0';
    for (int levels = 0; levels < 2; ++levels) {
        char* const slash = strrchr(folder, '/');
        if (slash == NULL) {
            return 0;
        }
        *slash = '\0';
    }
    return 1;
}

/* The file that a library is loaded from, links resolved. 0 when there is none. */
static int findLibrary(const char* name, char* file) {
    void* const library = dlopen(name, RTLD_LAZY | RTLD_LOCAL);
    struct link_map* map = NULL;
    const int isFound = library != NULL && dlinfo(library, RTLD_DI_LINKMAP, &map) == 0 &&
                        realpath(map->l_name, file) != NULL;
    if (library != NULL) {
        dlclose(library);
    }
    return isFound;
}

/* Libraries' files end in their version: libstdc++.so.6.0.30. */
static const char* versionOf(const char* file) {
    const char* const version = strstr(file, ".so.");
    return version == NULL ? "" : version + 4;
}

static int isNewer(const char* file, const char* other) {
    return strverscmp(versionOf(file), versionOf(other)) > 0;
}

/* The program finds the folder through LD_LIBRARY_PATH, and gives the variable back its value. */
static int useBundledCxx(const char* folder) {
    const char* const before = getenv("LD_LIBRARY_PATH");
    char* path = NULL;
    if (asprintf(&path, "%s%s%s", folder, before == NULL ? "" : ":", before == NULL ? "" : before) <
        0) {
        return 0;
    }
    return setenv("CORVANE_LIBRARY_PATH_BEFORE", before == NULL ? "" : before, 1) == 0 &&
           setenv("LD_LIBRARY_PATH", path, 1) == 0;
}

static int chooseCxx(const char* bundle) {
    char folder[PATH_MAX];
    char name[PATH_MAX];
    char bundled[PATH_MAX];
    char systems[PATH_MAX];
    if (snprintf(folder, sizeof folder, "%s/lib/runtime/c++", bundle) >= (int)sizeof folder ||
        snprintf(name, sizeof name, "%s/%s", folder, cxxLibrary) >= (int)sizeof name) {
        errno = ENAMETOOLONG;
        return 0;
    }
    if (realpath(name, bundled) == NULL) {
        return 0;
    }
    if (findLibrary(cxxLibrary, systems) && !isNewer(bundled, systems)) {
        return 1;
    }
    return useBundledCxx(folder);
}

int main(int argc, char** argv) {
    (void)argc;
    char bundle[PATH_MAX];
    char* program = NULL;
    if (findBundle(bundle, sizeof bundle) && chooseCxx(bundle) &&
        asprintf(&program, "%s/libexec/corvane", bundle) >= 0) {
        execv(program, argv);
    }
    fprintf(stderr, "corvane: cannot be started from %s (%s); unpack the archive again.\n", bundle,
            strerror(errno));
    return 127;
}
