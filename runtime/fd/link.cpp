#include "include/io.h"
#include "runtime/fd/descriptor.h"

// A move, not a second link: the old name is gone afterwards.
extern "C" ORV_EXPORT int _link(const char *old_name, const char *new_name) {
    return MoveFileA(old_name, new_name) ? 0 : orv::fail(EIO);
}
