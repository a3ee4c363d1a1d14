#include "clib/error/diag.h"
#include "runtime/export.h"

// Stands in the virtual-table slots of pure virtual functions. Returns only
// if abort does.
extern "C" ORV_EXPORT void __pure_error_(void) {
    orv::diag::put_text(orv::diag::pure_virtual_text);
    orv::diag::stop();
}
