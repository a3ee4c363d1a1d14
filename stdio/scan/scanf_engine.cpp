#include "include/errno.h"
#include "stdio/scan/scan.h"

using namespace orv::scan;

namespace {

using Unget = int (*)(int, _orv_source *);

// The call's state beside the scan_spec record: the character in hand, which is not
// yet counted as consumed, and the argument pointers.
struct Engine {
    scan_spec spec;
    int c;
    bool pending = false; // c was used by %c: fetch before going on
    int assigned = 0;
    void *const *argument;

    void *next_argument() { return spec.suppress ? nullptr : *argument++; }

    void done() {
        if (!spec.failed && !spec.suppress) ++assigned;
    }

    void store_count(void *where) {
        if (spec.size == 0) *static_cast<short *>(where) = static_cast<short>(spec.count);
        else *static_cast<int *>(where) = spec.count;
    }

    void integer() {
        char letter = spec.conversion; // before a 0x prefix rewrites it
        void *where = next_argument();
        long long value;
        c = __scan_integer(&spec, c, &value);
        if (spec.failed || where == nullptr) return;
        if (letter == 'p' || spec.size == 1 || spec.size == 2) *static_cast<int *>(where) = static_cast<int>(value);
        else if (spec.size == 0) *static_cast<short *>(where) = static_cast<short>(value);
        else *static_cast<long long *>(where) = value;
        done();
    }

    void floating() {
        void *where = next_argument();
        if (spec.size == 3) {
            quad value;
            c = __scan_quad(&spec, c, &value);
            if (spec.failed || where == nullptr) return;
            *static_cast<quad *>(where) = value;
        } else {
            double value;
            c = __scan_double(&spec, c, &value);
            if (spec.failed || where == nullptr) return;
            if (spec.size == 2) *static_cast<double *>(where) = value;
            else *static_cast<float *>(where) = static_cast<float>(value);
        }
        done();
    }

    // The last character is not followed by a read: pending says so.
    void characters() {
        char *to = static_cast<char *>(next_argument());
        if (spec.width == 0 || c == end_of_input) {
            spec.failed = true;
            return;
        }
        for (;;) {
            if (to != nullptr) *to++ = static_cast<char>(c);
            if (--spec.width == 0) {
                pending = true;
                break;
            }
            c = next(&spec);
            if (c == end_of_input) break;
        }
        done();
    }

    bool in_set(int ch) const {
        return ch != end_of_input && (spec.set[ch] != 0) != spec.negate;
    }

    // What %s and %[ share: members are stored while the width lasts, then
    // the terminator.
    template <class Member> void field(Member member) {
        char *to = static_cast<char *>(next_argument());
        if (spec.width == 0 || !member(c)) {
            spec.failed = true;
            return;
        }
        for (; spec.width != 0 && member(c); c = take(&spec))
            if (to != nullptr) *to++ = static_cast<char>(c);
        if (to != nullptr) *to = 0;
        done();
    }

    void convert() {
        switch (spec.conversion) {
        case 'd': case 'i': case 'o': case 'u': case 'x': case 'X': case 'p': integer(); break;
        case 'e': case 'E': case 'f': case 'g': case 'G': floating(); break;
        case 'c': characters(); break;
        case 's':
            c = skip_space(&spec, c);
            field([](int ch) { return ch != end_of_input && !is_space(ch); });
            break;
        case '[': field([this](int ch) { return in_set(ch); }); break;
        case 'n':
            if (!spec.suppress) store_count(*argument++);
            break;
        default: spec.failed = true;
        }
    }

    // A literal byte of the format; answers whether it matched.
    bool literal(unsigned char want) {
        if (c != want) {
            spec.failed = true;
            return false;
        }
        c = next(&spec);
        return true;
    }
};

} // namespace

// Walks the format, one character ahead of what it has consumed, and gives
// that character back at the end. Answers the assignments, or -1 when input
// ended before any.
extern "C" ORV_EXPORT int _scanf_(_orv_source *source, Unget unget, const char *format, const void *arguments) {
    if (format == nullptr) {
        errno = EINVAL;
        return -1;
    }
    Engine e;
    e.spec.get = source->get;
    e.spec.context = source->context;
    e.spec.failed = false;
    e.spec.count = 0;
    e.argument = static_cast<void *const *>(arguments);
    e.c = e.spec.get(e.spec.context);
    const unsigned char *p = reinterpret_cast<const unsigned char *>(format);
    while (*p != 0 && !e.spec.failed && e.c != end_of_input) {
        if (e.pending) {
            e.c = next(&e.spec);
            e.pending = false;
        }
        if (is_space(*p)) {
            while (is_space(*p)) ++p;
            e.c = skip_space(&e.spec, e.c);
        } else if (*p != '%') {
            if (e.literal(*p)) ++p;
        } else if (p[1] == '%') {
            if (e.literal('%')) p += 2;
        } else {
            p = reinterpret_cast<const unsigned char *>(__parse_scan_conversion(&e.spec, reinterpret_cast<const char *>(p + 1)));
            e.convert();
        }
    }
    // A %n right behind the point where scanning stopped still gets its value.
    if (*p != 0) {
        __parse_scan_conversion(&e.spec, reinterpret_cast<const char *>(p + 1));
        if (e.spec.conversion == 'n' && !e.spec.suppress) e.store_count(*e.argument);
    }
    if (e.c != end_of_input && !e.pending) {
        unget(e.c, source);
        return e.assigned;
    }
    return e.assigned != 0 ? e.assigned : -1;
}
