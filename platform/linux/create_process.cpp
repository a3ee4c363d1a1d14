#include "command_line.h"
#include "environment.h"
#include "handles.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

namespace {

using namespace orv;

constexpr unsigned line_capacity = 32768; // the platform's longest command line
constexpr int max_args = 1024;
constexpr long x_ok = 1;

bool has_separator(const char *name) {
    for (; *name; ++name)
        if (*name == '/' || *name == '\\') return true;
    return false;
}

bool executable(const char *path) { return sys::call2(sys::nr_access, sys::arg(path), x_ok) == 0; }

// A name without a separator is looked for in each directory of PATH.
bool find_program(const char *name, char *out, unsigned capacity) {
    if (has_separator(name)) {
        k32::NativePath native(name);
        if (!native.ok()) return false;
        unsigned i = 0;
        for (const char *p = native.c_str(); *p && i + 1 < capacity; ++p) out[i++] = *p;
        out[i] = 0;
        return true;
    }
    const char *dirs = k32::environment_value("PATH");
    while (dirs != nullptr && *dirs) {
        unsigned i = 0;
        for (; *dirs && *dirs != ':' && *dirs != ';'; ++dirs)
            if (i + 1 < capacity) out[i++] = *dirs;
        if (*dirs) ++dirs;
        if (i == 0) out[i++] = '.';
        if (i + 1 < capacity) out[i++] = '/';
        for (const char *n = name; *n && i + 1 < capacity; ++n) out[i++] = *n;
        out[i] = 0;
        if (executable(out)) return true;
    }
    return false;
}

// The child reports a failed execve through a pipe that closes on a
// successful one, so the parent learns the outcome before it returns.
long start(const char *path, char **argv) {
    int report[2];
    if (sys::failed(sys::call2(sys::nr_pipe2, sys::arg(report), sys::o_cloexec))) return -1;
    long pid = sys::call0(sys::nr_fork);
    if (pid == 0) {
        long error = sys::call3(sys::nr_execve, sys::arg(path), sys::arg(argv),
                                sys::arg(k32::environment_block()));
        sys::call3(sys::nr_write, report[1], sys::arg(&error), sizeof error);
        sys::call1(sys::nr_exit_group, 127);
    }
    sys::call1(sys::nr_close, report[1]);
    long error = 0;
    long got = sys::failed(pid) ? 0 : sys::call3(sys::nr_read, report[0], sys::arg(&error), sizeof error);
    sys::call1(sys::nr_close, report[0]);
    if (sys::failed(pid)) return -1;
    if (got > 0) {
        int status;
        sys::call4(sys::nr_wait4, pid, sys::arg(&status), 0, 0);
        return -1;
    }
    return pid;
}

} // namespace

// The application name is not used: the program is the command line's
// first argument. Standard handles are inherited; files the stand-in opens
// close on exec, as the platform's handles are not inheritable by default.
extern "C" K32_API BOOL WINAPI CreateProcessA(LPCSTR, LPSTR command_line, void *, void *, BOOL, DWORD, void *,
                                              LPCSTR, STARTUPINFOA *, PROCESS_INFORMATION *info) {
    unsigned length = 0;
    while (command_line[length]) ++length;
    if (length >= line_capacity) return k32::fail(ERROR_INVALID_PARAMETER, BOOL{0});
    char text[line_capacity + 1];
    char *argv[max_args];
    char path[4096];
    if (k32::split_command_line(command_line, text, argv, max_args) == 0 ||
        !find_program(argv[0], path, sizeof path))
        return k32::fail(ERROR_FILE_NOT_FOUND, BOOL{0});
    long pid = start(path, argv);
    if (pid < 0) return k32::fail(ERROR_FILE_NOT_FOUND, BOOL{0});
    info->hProcess = k32::handle_new(k32::Kind::process, static_cast<int>(pid));
    info->hThread = k32::handle_new(k32::Kind::thread, static_cast<int>(pid));
    info->dwProcessId = info->dwThreadId = static_cast<DWORD>(pid);
    return 1;
}
