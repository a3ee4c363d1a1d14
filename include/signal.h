/* The software signal table: only raise and abort ever raise a signal. */
#ifndef _ORV_SIGNAL_H
#define _ORV_SIGNAL_H
#include "_orv_defs.h"

typedef void (*__signal_handler_t)(int);
typedef int sig_atomic_t;

#define SIG_DFL ((__signal_handler_t)0)
#define SIG_IGN ((__signal_handler_t)1)
#define SIG_ERR ((__signal_handler_t)-1)

#define SIGINT 2
#define SIGILL 4
#define SIGFPE 8
#define SIGSEGV 11
#define SIGTERM 15
#define SIGABRT 6

_ORV_BEGIN
__signal_handler_t signal(int sig, __signal_handler_t handler);
int raise(int sig);
_ORV_END

#endif
