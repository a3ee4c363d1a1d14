/*
 * The tests' own harness. It reports through raw system calls, so that a
 * fault in the library's streams cannot hide a failure, and runs code that
 * ends its process or writes to the standard descriptors in a child
 * process whose output and status it collects.
 *
 * A test program calls CHECK macros, then returns t_finish(), which prints
 * "N passed, M failed" and answers the exit status.
 */
#ifndef ORV_TEST_HARNESS_H
#define ORV_TEST_HARNESS_H

#ifdef __cplusplus
extern "C" {
#endif

void t_check(int ok, const char *what, const char *file, int line);
void t_check_int(long long got, long long want, const char *what,
                 const char *file, int line);
void t_check_hex(unsigned long long got, unsigned long long want,
                 const char *what, const char *file, int line);
void t_check_str(const char *got, const char *want, const char *what,
                 const char *file, int line);
void t_check_mem(const void *got, unsigned got_len, const void *want,
                 unsigned want_len, const char *what, const char *file,
                 int line);

#define CHECK(e) t_check(!!(e), #e, __FILE__, __LINE__)
#define CHECK_EQ(got, want) \
    t_check_int((long long)(got), (long long)(want), #got " == " #want, __FILE__, __LINE__)
#define CHECK_HEX(got, want)                                                     \
    t_check_hex((unsigned long long)(got), (unsigned long long)(want),           \
                #got " == " #want, __FILE__, __LINE__)
#define CHECK_STR(got, want) t_check_str((got), (want), #got " == " #want, __FILE__, __LINE__)
#define CHECK_MEM(got, got_len, want, want_len)                                  \
    t_check_mem((got), (got_len), (want), (want_len), #got " == " #want, __FILE__, __LINE__)

/* Names the group of checks that follows, for failure reports. */
void t_section(const char *name);

/* Prints the summary line; answers 0 when nothing failed, else 1. */
int t_finish(void);

/* Prints a line on descriptor 2 through a raw write. */
void t_note(const char *text);

typedef struct t_child {
    int exited;        /* 1 when it ended by exit, 0 when by a signal */
    int status;        /* exit status, or the signal number */
    unsigned out_len, err_len;
    char out[65536];   /* what it wrote to descriptor 1 */
    char err[65536];   /* what it wrote to descriptor 2 */
} t_child;

/* Runs fn(arg) in a child process whose descriptor 0 reads `input` (a file
   holding input_len bytes) and whose descriptors 1 and 2 are collected.
   When fn returns, the child ends at once with fn's result as its status,
   without any of the library's exit processing. */
void t_run_child(t_child *child, int (*fn)(void *), void *arg,
                 const void *input, unsigned input_len);

/* The same with descriptor 0 reading the read end of a pipe that holds
   `input`, closed behind it. */
void t_run_child_piped(t_child *child, int (*fn)(void *), void *arg,
                       const void *input, unsigned input_len);

/* Raw helpers that need no library. */
unsigned t_strlen(const char *s);
int t_memeq(const void *a, const void *b, unsigned n);
void t_memset(void *p, int byte, unsigned n);

/* Reads a whole file by raw system calls; answers its length, or -1. */
int t_read_file(const char *path, void *buffer, unsigned capacity);
/* Writes a whole file by raw system calls, replacing it; answers 0 or -1. */
int t_write_file(const char *path, const void *data, unsigned length);
/* Whether a path exists. */
int t_exists(const char *path);
/* Removes a file if it is there. */
void t_remove(const char *path);

#ifdef __cplusplus
}
#endif

#endif
