// The formatted input engine's pieces: the working record, the conversion
// parser and the number scanners.
#pragma once

#include "clib/ctype/table.h"
#include "include/quad.h"
#include "include/stdio.h"
#include "runtime/export.h"

#include <cstddef>

static_assert(sizeof(_orv_source) == 8);
static_assert(offsetof(_orv_source, context) == 0 && offsetof(_orv_source, get) == 4);

// One for the whole call: count, get, context and failed last for the
// call, the rest is filled afresh for each conversion.
struct scan_spec {
    int count; // characters consumed so far
    int (*get)(void *context);
    void *context;
    bool failed;
    char conversion; // rewritten to x or X by a 0x prefix under i
    int width;       // -1 for none; runs down, and from -1 never reaches 0
    unsigned size;   // 0 h, 1 none, 2 l, 3 ll or L
    bool suppress;
    bool negate;
    unsigned char set[256];
};

namespace orv::scan {

inline constexpr int end_of_input = -1;

inline bool is_space(int c) { return ctype::bits(c) & _IS_SP; }

// The character in hand is used: count it and fetch the next.
inline int next(scan_spec *spec) {
    ++spec->count;
    return spec->get(spec->context);
}

// The same inside a field, where the width runs down too.
inline int take(scan_spec *spec) {
    --spec->width;
    return next(spec);
}

inline int skip_space(scan_spec *spec, int c) {
    while (is_space(c)) c = next(spec);
    return c;
}

} // namespace orv::scan

extern "C" {
ORV_HIDDEN const char *__parse_scan_conversion(scan_spec *spec, const char *format);
ORV_HIDDEN int __scan_integer(scan_spec *spec, int c, long long *result);
ORV_HIDDEN int __scan_double(scan_spec *spec, int c, double *result);
ORV_HIDDEN int __scan_quad(scan_spec *spec, int c, quad *result);
}
