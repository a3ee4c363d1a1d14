#include "include/stdlib.h"
#include "runtime/export.h"

// A quicksort without recursion that leaves ranges of up to nine elements
// alone, then one insertion pass over the whole array finishes them. The
// pivot is the last element of a range and is compared in place; the
// insertion pass compares against a copy in the scratch element, so a
// comparison function may see a second pointer outside the array.

namespace {

using compare_fn = int (*)(const void *, const void *);
using byte = unsigned char;

// Plain byte copies from the last byte down, whatever the size.
void copy_element(byte *to, const byte *from, size_t size) {
    while (size != 0) {
        --size;
        to[size] = from[size];
    }
}

void exchange(byte *a, byte *b, byte *scratch, size_t size) {
    copy_element(scratch, a, size);
    copy_element(a, b, size);
    copy_element(b, scratch, size);
}

// Ranges of fewer than ten elements are never partitioned.
constexpr int small_range = 8; // hi - lo at or below this

// Each push at least halves the working range, so depth d needs at least
// 11 * 2^(d-1) - 1 elements; 28 pending ranges cover every signed count.
// Slots 0 and 1 are never pushed: popping into them ends the loop.
constexpr int max_pending = 28;

struct sorter {
    byte *base;
    size_t size;
    compare_fn compar;
    byte *scratch;

    byte *at(int k) const { return base + static_cast<size_t>(k) * size; }

    // Partitions lo..hi around element hi and answers the pivot's place.
    int partition(int lo, int hi) const {
        byte *pivot = at(hi);
        int i = lo - 1, j = hi;
        for (;;) {
            while (++i < j && compar(at(i), pivot) <= 0) {}
            while (--j > i && compar(at(j), pivot) >= 0) {}
            if (j <= i) break;
            exchange(at(i), at(j), scratch, size);
        }
        if (at(i) != pivot) exchange(at(i), pivot, scratch, size);
        return i;
    }

    void partition_all(int count) const {
        int pending[2 + 2 * max_pending];
        pending[0] = pending[1] = 0;
        int top = 2, lo = 0, hi = count - 1;
        while (top > 0) {
            if (hi - lo <= small_range) {
                top -= 2;
                lo = pending[top];
                hi = pending[top + 1];
                continue;
            }
            int i = partition(lo, hi);
            // The smaller side is worked on next; a tie defers the right.
            if (i - lo > hi - i) {
                pending[top] = lo;
                pending[top + 1] = i - 1;
                lo = i + 1;
            } else {
                pending[top] = i + 1;
                pending[top + 1] = hi;
                hi = i - 1;
            }
            top += 2;
        }
    }

    void insertion_pass(size_t count) const {
        for (size_t k = 1; k < count; ++k) {
            copy_element(scratch, at(static_cast<int>(k)), size);
            int j = static_cast<int>(k);
            for (; j > 0 && compar(at(j - 1), scratch) > 0; --j) copy_element(at(j), at(j - 1), size);
            copy_element(at(j), scratch, size);
        }
    }
};

} // namespace

extern "C" ORV_EXPORT void qsort(void *base, size_t nmemb, size_t size, compare_fn compar) {
    auto *scratch = static_cast<byte *>(malloc(size));
    if (scratch == nullptr) return; // silently unsorted, errno untouched
    sorter s{static_cast<byte *>(base), size, compar, scratch};
    s.partition_all(static_cast<int>(nmemb));
    if (nmemb > 1) s.insertion_pass(nmemb);
    free(scratch);
}
