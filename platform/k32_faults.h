/*
 * Fault injection and call tracing in the kernel stand-in, for tests.
 *
 * A test makes the Nth call from now of a chosen operation fail with the
 * platform's failure answer, or a WriteFile come back short, so that every
 * failure path of the library can be driven. The trace records the file
 * calls in order, so that tests can see which kernel calls a library
 * function made. Not part of the platform's interface.
 */
#ifndef ORV_PLATFORM_K32_FAULTS_H
#define ORV_PLATFORM_K32_FAULTS_H

#include "kernel32.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef enum K32Op {
    K32_HeapAlloc,
    K32_HeapReAlloc,
    K32_CreateFileA,
    K32_CloseHandle,
    K32_ReadFile,
    K32_WriteFile,
    K32_SetFilePointer,
    K32_GetFileType,
    K32_MoveFileA,
    K32_DeleteFileA,
    K32_OP_COUNT
} K32Op;

/* The nth call of op from now (1: the very next) fails. */
K32_API void k32_fail_call(K32Op op, unsigned nth);
/* The nth WriteFile from now writes at most `bytes` bytes and reports that. */
K32_API void k32_short_write(unsigned nth, unsigned bytes);
/* Forget every pending fault. */
K32_API void k32_clear_faults(void);
/* Calls of op made since the process started, failed ones included. */
K32_API unsigned k32_call_count(K32Op op);

typedef struct K32TraceEntry {
    K32Op op;
    HANDLE handle;
    DWORD count;  /* bytes asked for, or the distance of SetFilePointer */
    DWORD result; /* bytes done, the new position, or the BOOL answer */
} K32TraceEntry;

/* Record file calls into `log` until k32_trace_stop, which answers how many
   were recorded (entries beyond `capacity` are counted, not stored). */
K32_API void k32_trace_start(K32TraceEntry *log, unsigned capacity);
K32_API unsigned k32_trace_stop(void);

#ifdef __cplusplus
}
#endif

#endif
