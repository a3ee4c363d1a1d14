// The thread's structured exception chain, in place of the platform's:
// code pushes records on NtCurrentTeb()->ExceptionList as it would there,
// and a SIGILL handler offers an illegal-instruction fault to the chain.
// A handler that answers ExceptionContinueExecution resumes the thread in
// the register context it left; with no taker the default action follows.
#include "../kernel32.h"
#include "syscall.h"

extern "C" void orv_sigreturn(void) __attribute__((visibility("hidden")));

namespace {

using namespace orv::sys;

constexpr int sigill = 4;
constexpr unsigned long sa_siginfo = 4, sa_restorer = 0x04000000;

struct KernelSigaction {
    void (*handler)(int, void *, void *);
    unsigned long flags;
    void (*restorer)(void);
    unsigned long mask[2];
};

// i386 struct sigcontext, as it lies in the signal frame's ucontext.
struct SigContext {
    unsigned long gs, fs, es, ds;
    unsigned long edi, esi, ebp, esp, ebx, edx, ecx, eax;
    unsigned long trapno, err, eip, cs, eflags, esp_at_signal, ss;
    void *fpstate;
    unsigned long oldmask, cr2;
};

struct UContext {
    unsigned long flags;
    UContext *link;
    unsigned long stack[3];
    SigContext mc;
};

constinit NT_TIB tib = {EXCEPTION_CHAIN_END, nullptr, nullptr, nullptr,
                        nullptr, nullptr, &tib};
constinit bool installed = false;

void to_context(const SigContext &sc, CONTEXT &c) {
    c.ContextFlags = 0x1000F;  // CONTEXT_FULL for i386
    c.Edi = sc.edi; c.Esi = sc.esi; c.Ebx = sc.ebx; c.Edx = sc.edx;
    c.Ecx = sc.ecx; c.Eax = sc.eax; c.Ebp = sc.ebp; c.Eip = sc.eip;
    c.SegCs = sc.cs; c.EFlags = sc.eflags; c.Esp = sc.esp; c.SegSs = sc.ss;
    c.SegGs = sc.gs; c.SegFs = sc.fs; c.SegEs = sc.es; c.SegDs = sc.ds;
}

void from_context(const CONTEXT &c, SigContext &sc) {
    sc.edi = c.Edi; sc.esi = c.Esi; sc.ebx = c.Ebx; sc.edx = c.Edx;
    sc.ecx = c.Ecx; sc.eax = c.Eax; sc.ebp = c.Ebp; sc.eip = c.Eip;
    sc.eflags = c.EFlags; sc.esp = c.Esp;
}

void set_action(void (*handler)(int, void *, void *), unsigned long flags) {
    KernelSigaction act{handler, flags | sa_restorer, orv_sigreturn, {0, 0}};
    call4(nr_rt_sigaction, sigill, arg(&act), 0, 8);
}

void dispatch(int, void *, void *uc) {
    SigContext &sc = static_cast<UContext *>(uc)->mc;
    CONTEXT context{};
    to_context(sc, context);
    EXCEPTION_RECORD record{};
    record.ExceptionCode = EXCEPTION_ILLEGAL_INSTRUCTION;
    record.ExceptionAddress = reinterpret_cast<LPVOID>(sc.eip);
    for (EXCEPTION_REGISTRATION_RECORD *r = tib.ExceptionList;
         r != EXCEPTION_CHAIN_END && r != nullptr; r = r->Next) {
        if (r->Handler(&record, r, &context, nullptr) ==
            ExceptionContinueExecution) {
            from_context(context, sc);
            return;
        }
    }
    // Nobody took it: the faulting instruction runs again under the
    // default action and ends the process, as an unhandled fault does.
    set_action(nullptr, 0);
}

} // namespace

extern "C" K32_API NT_TIB *WINAPI NtCurrentTeb(void) {
    if (!installed) {
        set_action(dispatch, sa_siginfo);
        installed = true;
    }
    return &tib;
}
