#include "native_path.h"
#include "last_error.h"

namespace orv::k32 {

NativePath::NativePath(const char *path) : buf_{}, ok_(false) {
    if (path == nullptr || path[0] == '\0') {
        SetLastError(ERROR_PATH_NOT_FOUND);
        return;
    }
    unsigned i = 0;
    for (; path[i] != '\0'; ++i) {
        if (i + 1 >= capacity) {
            SetLastError(ERROR_FILENAME_EXCED_RANGE);
            return;
        }
        buf_[i] = path[i] == '\\' ? '/' : path[i];
    }
    buf_[i] = '\0';
    ok_ = true;
}

} // namespace orv::k32
