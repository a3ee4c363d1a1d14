#include "syscall.h"

namespace {

constexpr unsigned long at_sysinfo = 32;

// The loader calls a library's initialisers with argc, argv and the
// environment; the auxiliary vector follows the environment's null. This
// one runs before any other initialiser of the stand-in.
[[gnu::constructor(101)]] void find_kernel_entry(int, char **, char **envp) {
    if (envp == nullptr) return;
    while (*envp != nullptr) ++envp;
    for (auto *aux = reinterpret_cast<unsigned long *>(envp + 1); aux[0] != 0; aux += 2)
        if (aux[0] == at_sysinfo && aux[1] != 0) orv::sys::orv_kernel_entry = reinterpret_cast<void *>(aux[1]);
}

} // namespace
