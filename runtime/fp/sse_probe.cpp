// Whether the SSE unit may be used, found out once per process under a
// structured exception handler: touching MXCSR on a system without SSE
// raises an illegal-instruction fault, which the handler turns into a
// non-local return.
#include "include/setjmp.h"
#include "platform/kernel32.h"
#include "runtime/fp/fp_unit.h"
#include "runtime/fp/fpenv.h"

extern "C" ORV_HIDDEN jmp_buf __sse_probe_jump;
constinit jmp_buf __sse_probe_jump = {};

namespace orv {
namespace {

constexpr std::uint32_t fxsr_and_sse2 = 0x5000000;  // EDX bits 24 and 26

enum JmpWord { jb_ebx, jb_edi, jb_esi, jb_ebp, jb_esp, jb_eip };

// Resumes the thread as a longjmp(__sse_probe_jump, 1) would.
EXCEPTION_DISPOSITION probe_handler(EXCEPTION_RECORD *record, void *,
                                    CONTEXT *context, void *) {
    if (record->ExceptionCode == EXCEPTION_ILLEGAL_INSTRUCTION) {
        context->Eax = 1;
        context->Ebx = __sse_probe_jump[jb_ebx];
        context->Edi = __sse_probe_jump[jb_edi];
        context->Esi = __sse_probe_jump[jb_esi];
        context->Ebp = __sse_probe_jump[jb_ebp];
        context->Esp = __sse_probe_jump[jb_esp] + 4;
        context->Eip = __sse_probe_jump[jb_eip];
        context->EFlags &= ~(1UL << 20);
    }
    return ExceptionContinueExecution;
}

// Takes `record` off the chain. The chain ends in -1; stacks on this
// platform lie above 2 GiB, so the test is against the end marker rather
// than against the sign of the link.
void unlink(NT_TIB *tib, EXCEPTION_REGISTRATION_RECORD *record) {
    EXCEPTION_REGISTRATION_RECORD **link = &tib->ExceptionList;
    while (*link != EXCEPTION_CHAIN_END && *link != nullptr) {
        if (*link == record) {
            *link = record->Next;
            return;
        }
        link = &(*link)->Next;
    }
}

} // namespace

void sse_probe(std::uint32_t control, std::int32_t flush) {
    NT_TIB *tib = NtCurrentTeb();
    EXCEPTION_REGISTRATION_RECORD record = {tib->ExceptionList, probe_handler};
    tib->ExceptionList = &record;
    if (setjmp(__sse_probe_jump) == 0) {
        bool usable = (cpuid_features() & fxsr_and_sse2) == fxsr_and_sse2;
        __sse_state = usable ? 1 : -1;
        if (usable) set_mxcsr_for(control, flush);
    } else {
        __sse_state = -1;
    }
    unlink(tib, &record);
}

} // namespace orv
