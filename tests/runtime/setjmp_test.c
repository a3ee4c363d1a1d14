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
    ".text\n"
    ".globl jump_round_trip\n"
    "jump_round_trip:\n"
    "  pushl %ebp\n  pushl %ebx\n  pushl %esi\n  pushl %edi\n"
    /* args now at 20(env), 24(val), 28(out) */
    "  subl $12, %esp\n"
    /* args at 32, 36, 40 */
    "  movl $0x11111111, %ebx\n  movl $0x22222222, %esi\n"
    "  movl $0x33333333, %edi\n  movl $0x44444444, %ebp\n"
    "  movl 40(%esp), %eax\n  movl %esp, 20(%eax)\n"
    "  movl $1f, 48(%eax)\n"
    "  movl 32(%esp), %eax\n  movl %eax, (%esp)\n"
    "  call setjmp\n"
    "1:\n"
    "  testl %eax, %eax\n  jnz 2f\n"
    /* direct return: copy env, then jump from deeper down; a second
       return of 0 must not jump again */
    "  movl 32(%esp), %ecx\n  movl 40(%esp), %edx\n"
    "  incl 52(%edx)\n  cmpl $1, 52(%edx)\n  jne 2f\n"
    "  movl 0(%ecx), %eax\n  movl %eax, 24(%edx)\n"
    "  movl 4(%ecx), %eax\n  movl %eax, 28(%edx)\n"
    "  movl 8(%ecx), %eax\n  movl %eax, 32(%edx)\n"
    "  movl 12(%ecx), %eax\n  movl %eax, 36(%edx)\n"
    "  movl 16(%ecx), %eax\n  movl %eax, 40(%edx)\n"
    "  movl 20(%ecx), %eax\n  movl %eax, 44(%edx)\n"
    "  movl 36(%esp), %eax\n  movl %eax, 4(%esp)\n"
    "  call clobber_and_jump\n"
    "  hlt\n"
    "2:\n"
    "  movl 40(%esp), %ecx\n"
    "  movl %ebx, 0(%ecx)\n  movl %esi, 4(%ecx)\n  movl %edi, 8(%ecx)\n"
    "  movl %ebp, 12(%ecx)\n  movl %esp, 16(%ecx)\n"
    "  addl $12, %esp\n"
    "  popl %edi\n  popl %esi\n  popl %ebx\n  popl %ebp\n"
    "  ret\n"
    ".globl clobber_and_jump\n"
    "clobber_and_jump:\n"
    "  movl 4(%esp), %edx\n  movl 8(%esp), %ecx\n"
    "  movl $0xBAD00001, %ebx\n  movl $0xBAD00002, %esi\n"
    "  movl $0xBAD00003, %edi\n  movl $0xBAD00004, %ebp\n"
    "  subl $256, %esp\n"
    "  pushl %ecx\n  pushl %edx\n"
    "  call longjmp\n"
    "  hlt\n");

static void registers(void) {
    static const int vals[] = {0, 1, 7, -5};
    static const int want[] = {1, 1, 7, -5};
    for (unsigned i = 0; i < 4; ++i) {
        t_section(i == 0 ? "longjmp 0" : i == 1 ? "longjmp 1" : i == 2 ? "longjmp 7" : "longjmp -5");
        jmp_buf env;
        unsigned out[14];
        t_memset(out, 0, sizeof out);
        CHECK_EQ(jump_round_trip(env, vals[i], out), want[i]);
        CHECK_HEX(out[0], 0x11111111); /* ebx */
        CHECK_HEX(out[1], 0x22222222); /* esi */
        CHECK_HEX(out[2], 0x33333333); /* edi */
        CHECK_HEX(out[3], 0x44444444); /* ebp */
        CHECK_HEX(out[4], out[5]);     /* esp as before the call */

        /* The six words: EBX, EDI, ESI, EBP, ESP on entry, return address. */
        CHECK_HEX(out[6], 0x11111111);
        CHECK_HEX(out[7], 0x33333333);
        CHECK_HEX(out[8], 0x22222222);
        CHECK_HEX(out[9], 0x44444444);
        CHECK_HEX(out[10], out[5] - 4);
        CHECK_HEX(out[11], out[12]);
    }
    CHECK_EQ(sizeof(jmp_buf), 24);
}

/* An illegal instruction taken as a jump, as the SSE probe's handler does
   it: the fault's context is edited to resume at the return of setjmp. */
static jmp_buf fault_jump;
static unsigned offered;

static EXCEPTION_DISPOSITION pass_on(EXCEPTION_RECORD *r, void *f, CONTEXT *c, void *d) {
    (void)r; (void)f; (void)c; (void)d;
    ++offered;
    return ExceptionContinueSearch;
}

static EXCEPTION_DISPOSITION take_as_jump(EXCEPTION_RECORD *r, void *f, CONTEXT *c, void *d) {
    (void)f; (void)d;
    ++offered;
    if (r->ExceptionCode != EXCEPTION_ILLEGAL_INSTRUCTION) return ExceptionContinueSearch;
    c->Eax = 1;
    c->Ebx = fault_jump[0];
    c->Edi = fault_jump[1];
    c->Esi = fault_jump[2];
    c->Ebp = fault_jump[3];
    c->Esp = fault_jump[4] + 4;
    c->Eip = fault_jump[5];
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
    CHECK_EQ(r, 1);
    CHECK_EQ(tries, 2);
    CHECK_EQ(offered, 2);
}

int main(void) {
    registers();
    fault_as_jump();
    return t_finish();
}
