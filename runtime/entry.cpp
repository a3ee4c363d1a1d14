// The library's entry point and the load-time call that stands in for the
// platform loader's process-attach call.
#include "include/tvlkc.h"
#include "runtime/export.h"
#include "runtime/fp/fpenv.h"
#include "runtime/init_lists.h"

namespace {
constexpr unsigned long process_attach = 1;
constexpr int entry_control = 0x1027F;
} // namespace

extern "C" ORV_EXPORT int __attribute__((stdcall))
_start(void *, unsigned long reason, void *) {
    if (reason == process_attach) orv::walk_init_lists();
    __fp_set_control(entry_control);
    return 1;
}

// The ELF loader runs this once, before the program's code can call into
// the library: the process-attach call.
extern "C" const char __ehdr_start[] ORV_HIDDEN;

[[gnu::constructor]] static void attach_process() {
    _start(const_cast<char *>(__ehdr_start), process_attach, nullptr);
}
