// Membership in a set of characters given as a string, for the span and
// break scans.
#pragma once

namespace orv::charset {

inline bool contains(const char *set, char c) {
    for (; *set != 0; ++set)
        if (*set == c) return true;
    return false;
}

} // namespace orv::charset
