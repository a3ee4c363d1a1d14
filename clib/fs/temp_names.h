/* Temporary names: a prefix of at most five characters and five digits of
   a counter of its own, and the directory they go in. Usable from C. */
#ifndef ORV_CLIB_FS_TEMP_NAMES_H
#define ORV_CLIB_FS_TEMP_NAMES_H

#include "runtime/export.h"

#ifdef __cplusplus
extern "C" {
#endif
ORV_EXPORT char *_orv_get_tmpdir(void);
#ifdef __cplusplus
}

#include <cstdint>

namespace orv::fs {

inline constexpr unsigned name_size = 11;  // 5 + 5 digits + terminator

// Writes prefix and counter into `to`, then advances the counter (which
// wraps after 65535).
void make_name(char *to, const char *prefix, std::uint16_t &counter);

// `dir`, a backslash unless `dir` ends in one, and `name`, in a new heap
// block; null if the heap refuses.
char *join_path(const char *dir, const char *name);

} // namespace orv::fs
#endif

#endif
