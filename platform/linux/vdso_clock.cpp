#include "vdso_clock.h"

#include "syscall.h"

namespace orv::k32 {

namespace {

struct Ehdr {
    unsigned char ident[16];
    std::uint16_t type, machine;
    std::uint32_t version, entry, phoff, shoff, flags;
    std::uint16_t ehsize, phentsize, phnum, shentsize, shnum, shstrndx;
};
struct Phdr {
    std::uint32_t type, offset, vaddr, paddr, filesz, memsz, flags, align;
};
struct Shdr {
    std::uint32_t name, type, flags, addr, offset, size, link, info, addralign, entsize;
};
struct Sym {
    std::uint32_t name, value, size;
    unsigned char info, other;
    std::uint16_t shndx;
};
static_assert(sizeof(Ehdr) == 52 && sizeof(Phdr) == 32 && sizeof(Shdr) == 40 && sizeof(Sym) == 16);

struct Time64 {
    std::int64_t sec, nsec;
};
struct Time32 {
    std::int32_t sec, nsec;
};
using Gettime64 = long (*)(long clock, Time64 *ts);
using Gettime32 = long (*)(long clock, Time32 *ts);

constinit bool resolved = false;
constinit Gettime64 gettime64 = nullptr;
constinit Gettime32 gettime32 = nullptr;

// Where the kernel mapped the vDSO: AT_SYSINFO_EHDR of the auxiliary vector.
std::uintptr_t vdso_base() {
    long fd = sys::call3(sys::nr_open, sys::arg("/proc/self/auxv"), sys::o_rdonly, 0);
    if (sys::failed(fd)) return 0;
    std::uint32_t pair[2];
    std::uintptr_t base = 0;
    while (sys::call3(sys::nr_read, fd, sys::arg(pair), sizeof pair) == sizeof pair && pair[0]) {
        if (pair[0] == 33) base = pair[1];
    }
    sys::call1(sys::nr_close, fd);
    return base;
}

bool same(const char *a, const char *b) {
    while (*a && *a == *b) ++a, ++b;
    return *a == *b;
}

// The address of a defined function of the vDSO image, or 0.
std::uintptr_t lookup(std::uintptr_t base, const char *name) {
    auto *eh = reinterpret_cast<const Ehdr *>(base);
    if (eh->ident[0] != 0x7F || eh->ident[1] != 'E' || eh->ident[2] != 'L' || eh->ident[3] != 'F' ||
        eh->ident[4] != 1 || eh->shentsize != sizeof(Shdr) || eh->phentsize != sizeof(Phdr))
        return 0;
    std::uintptr_t bias = base;
    auto *ph = reinterpret_cast<const Phdr *>(base + eh->phoff);
    for (unsigned i = 0; i < eh->phnum; ++i)
        if (ph[i].type == 1 && ph[i].offset == 0) bias = base - ph[i].vaddr;  // first PT_LOAD
    auto *sh = reinterpret_cast<const Shdr *>(base + eh->shoff);
    for (unsigned i = 0; i < eh->shnum; ++i) {
        if (sh[i].type != 11 || sh[i].link >= eh->shnum) continue;  // SHT_DYNSYM
        auto *syms = reinterpret_cast<const Sym *>(base + sh[i].offset);
        auto *names = reinterpret_cast<const char *>(base + sh[sh[i].link].offset);
        for (unsigned k = 0; k < sh[i].size / sizeof(Sym); ++k)
            if (syms[k].shndx != 0 && (syms[k].info & 0xF) == 2 && same(names + syms[k].name, name))
                return bias + syms[k].value;
    }
    return 0;
}

void resolve() {
    resolved = true;
    std::uintptr_t base = vdso_base();
    if (base == 0) return;
    gettime64 = reinterpret_cast<Gettime64>(lookup(base, "__vdso_clock_gettime64"));
    if (gettime64 == nullptr)
        gettime32 = reinterpret_cast<Gettime32>(lookup(base, "__vdso_clock_gettime"));
}

} // namespace

bool vdso_realtime(std::int64_t &sec, std::int64_t &nsec) {
    if (!resolved) resolve();
    if (gettime64) {
        Time64 ts{};
        if (gettime64(0, &ts) != 0) return false;
        sec = ts.sec, nsec = ts.nsec;
        return true;
    }
    if (gettime32) {
        Time32 ts{};
        if (gettime32(0, &ts) != 0) return false;
        sec = ts.sec, nsec = ts.nsec;
        return true;
    }
    return false;
}

} // namespace orv::k32
