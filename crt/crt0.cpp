// The start code of a program. The library has been through its entry
// point by now (the loader ran it); what the program owes it is the three
// standard descriptors. Then the program's own static constructors, then
// main, whose result ends the process through exit, so that buffered
// output is written and the exit handlers run.
#include "include/fdmap.h"
#include "include/stdlib.h"
#include "include/time.h"
#include "platform/kernel32.h"

extern "C" int main(int argc, char **argv);

using init_function = void (*)(int, char **, char **);
extern "C" init_function __init_array_start[] __attribute__((visibility("hidden")));
extern "C" init_function __init_array_end[] __attribute__((visibility("hidden")));

namespace {

// Descriptors 0, 1 and 2 on the standard handles, translating line ends.
void register_std_descriptors() {
    const DWORD which[3] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    for (DWORD w : which) {
        fd_map *node = __new_fd_map();
        if (node == nullptr) return;
        node->handle = GetStdHandle(w);
        node->flags = FD_TEXT;
    }
}

void run_constructors(int argc, char **argv, char **envp) {
    for (init_function *f = __init_array_start; f < __init_array_end; ++f)
        (*f)(argc, argv, envp);
}

} // namespace

extern "C" [[noreturn]] void orv_crt_main(int argc, char **argv) {
    register_std_descriptors();
    __init_start_time(); // clock counts from here
    run_constructors(argc, argv, argv + argc + 1);
    exit(main(argc, argv));
}
