/* A driver that cannot even be loaded. */
#include <stdlib.h>

__attribute__((constructor)) static void crash(void) {
    abort();
}
