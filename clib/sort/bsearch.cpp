#include "include/stdlib.h"
#include "runtime/export.h"

// Probes the middle of lo..hi, key first; with several equal elements the
// one met first by this probe order is the answer.
extern "C" ORV_EXPORT void *bsearch(const void *key, const void *base, size_t nmemb, size_t size,
                                    int (*compar)(const void *, const void *)) {
    int lo = 0, hi = static_cast<int>(nmemb) - 1;
    if (hi < lo) return nullptr;
    const unsigned char *element;
    int result;
    do {
        // (lo + hi) / 2 while that fits, as lo and hi are never negative
        // here; beyond 2^30 elements the plain sum would overflow.
        int mid = lo + (hi - lo) / 2;
        element = static_cast<const unsigned char *>(base) + static_cast<size_t>(mid) * size;
        result = compar(key, element);
        if (result < 0)
            hi = mid - 1;
        else
            lo = mid + 1;
    } while (result != 0 && lo <= hi);
    return result == 0 ? const_cast<unsigned char *>(element) : nullptr;
}
