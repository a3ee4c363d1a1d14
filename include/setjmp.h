/* A jmp_buf holds EBX, EDI, ESI, EBP, the stack pointer on entry to setjmp
   and the return address: six words. */
#ifndef _ORV_SETJMP_H
#define _ORV_SETJMP_H

#include "_orv_defs.h"

_ORV_BEGIN

typedef unsigned long jmp_buf[6];

int setjmp(jmp_buf env) __attribute__((returns_twice));
void longjmp(jmp_buf env, int value) __attribute__((noreturn));

_ORV_END

#endif
