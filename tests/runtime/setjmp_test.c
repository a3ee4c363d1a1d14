/* Non-local jumps: the values setjmp returns, the six words it stores, and
   the registers a jump gives back. The register checks need exact control
   of the registers, so the caller of setjmp is written in assembly. */
#include <setjmp.h>

#include "harness.h"
#include "platform/kernel32.h"

/* jump_round_trip(env, val, out): with EBX, ESI, EDI and EBP set to known
   values, calls setjmp(env); on the direct return, env is copied to out[6..11]
   and a deeper frame with clobbered registers calls longjmp(env, val). On
   the return by jump, out[0..4] get EBX, ESI, EDI, EBP and ESP, out[5] the
   ESP of the setjmp call site (before the call) and out[12] the address
   the call returns to. Answers what setjmp answered the second time. */
int jump_round_trip(jmp_buf env, int val, unsigned *out);
void clobber_and_jump(jmp_buf env, int val);

__asm__(
    ".text\n.globl jump_round_trip\njump_round_trip:\n"
    "  pushl %ebp\n  pushl %ebx\n  pushl %esi\n  pushl %edi\n  subl $12, %esp\n"
    /* args at 32(env), 36(val), 40(out) */
    "  movl $0x11111111, %ebx\n  movl $0x22222222, %esi\n"
    "  movl $0x33333333, %edi\n  movl $0x44444444, %ebp\n"
    "  movl 40(%esp), %eax\n  movl %esp, 20(%eax)\n  movl $1f, 48(%eax)\n"
    "  movl 32(%esp), %eax\n  movl %eax, (%esp)\n  call setjmp\n"
    "1:  testl %eax, %eax\n  jnz 2f\n"
    /* direct return: copy env, then jump from deeper down; a second
       return of 0 must not jump again */
    "  movl 32(%esp), %ecx\n  movl 40(%esp), %edx\n"
    "  incl 52(%edx)\n  cmpl $1, 52(%edx)\n  jne 2f\n"
    /* ESI and EDI are free here: the jump gives them back from env */
    "  movl %ecx, %esi\n  leal 24(%edx), %edi\n  movl $6, %ecx\n  rep movsl\n"
    "  movl 36(%esp), %eax\n  movl %eax, 4(%esp)\n  call clobber_and_jump\n  hlt\n"
    "2:  movl 40(%esp), %ecx\n"
    "  movl %ebx, 0(%ecx)\n  movl %esi, 4(%ecx)\n  movl %edi, 8(%ecx)\n"
    "  movl %ebp, 12(%ecx)\n  movl %esp, 16(%ecx)\n  addl $12, %esp\n"
    "  popl %edi\n  popl %esi\n  popl %ebx\n  popl %ebp\n  ret\n"
    ".globl clobber_and_jump\nclobber_and_jump:\n"
    "  movl 4(%esp), %edx\n  movl 8(%esp), %ecx\n"
    "  movl $0xBAD00001, %ebx\n  movl $0xBAD00002, %esi\n"
    "  movl $0xBAD00003, %edi\n  movl $0xBAD00004, %ebp\n"
    "  subl $256, %esp\n  pushl %ecx\n  pushl %edx\n  call longjmp\n  hlt\n");

static void registers(void) {
    static const struct { const char *name; int val, want; } rows[] = {
        {"longjmp 0", 0, 1}, {"longjmp 1", 1, 1}, {"longjmp 7", 7, 7}, {"longjmp -5", -5, -5}};
    for (unsigned i = 0; i < 4; ++i) {
        t_section(rows[i].name);
        jmp_buf env;
        unsigned out[14];
        t_memset(out, 0, sizeof out);
        CHECK_EQ(jump_round_trip(env, rows[i].val, out), rows[i].want);
        /* EBX, ESI, EDI, EBP and ESP as before the call; then the six words
           stored: EBX, EDI, ESI, EBP, ESP on entry, the return address. */
        const unsigned want[12] = {0x11111111, 0x22222222, 0x33333333, 0x44444444, out[5], out[5],
                                   0x11111111, 0x33333333, 0x22222222, 0x44444444, out[5] - 4, out[12]};
        for (unsigned k = 0; k < 12; ++k) CHECK_HEX(out[k], want[k]);
    }
    CHECK_EQ(sizeof(jmp_buf), 24);
}

/* An illegal instruction taken as a jump, as the SSE probe's handler does
   it: the fault's context is edited to resume at the return of setjmp. */
static jmp_buf fault_jump;
static unsigned offered;

static EXCEPTION_DISPOSITION pass_on(EXCEPTION_RECORD *r, void *f, CONTEXT *c, void *d) {
    (void)r, (void)f, (void)c, (void)d;
    ++offered;
    return ExceptionContinueSearch;
}

static EXCEPTION_DISPOSITION take_as_jump(EXCEPTION_RECORD *r, void *f, CONTEXT *c, void *d) {
    (void)f, (void)d;
    ++offered;
    if (r->ExceptionCode != EXCEPTION_ILLEGAL_INSTRUCTION) return ExceptionContinueSearch;
    c->Eax = 1;
    c->Ebx = fault_jump[0], c->Edi = fault_jump[1], c->Esi = fault_jump[2];
    c->Ebp = fault_jump[3], c->Esp = fault_jump[4] + 4, c->Eip = fault_jump[5];
    return ExceptionContinueExecution;
}

static void fault_as_jump(void) {
    t_section("illegal instruction through the exception chain");
    NT_TIB *tib = NtCurrentTeb();
    EXCEPTION_REGISTRATION_RECORD outer_rec = {tib->ExceptionList, take_as_jump};
    EXCEPTION_REGISTRATION_RECORD inner_rec = {&outer_rec, pass_on};
    tib->ExceptionList = &inner_rec;
    volatile int tries = 0;
    int r = setjmp(fault_jump);
    if (++tries == 1) __asm__ volatile("ud2");
    tib->ExceptionList = outer_rec.Next;
    CHECK(r == 1 && tries == 2 && offered == 2);
}

int main(void) {
    registers();
    fault_as_jump();
    return t_finish();
}
