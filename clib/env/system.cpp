#include "include/stdlib.h"
#include "include/string.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

namespace {

// "SHELL -c "command"" with a shell named by the environment, else the
// platform's own interpreter with the command unquoted behind it.
char *command_line(const char *command) {
    const char *shell = getenv("SHELL");
    if (shell == nullptr) shell = getenv("COMSPEC");
    size_t n = strlen(command);
    if (shell != nullptr) {
        size_t s = strlen(shell);
        char *line = static_cast<char *>(malloc(s + n + 8));
        if (line == nullptr) return nullptr;
        memcpy(line, shell, s);
        memcpy(line + s, " -c \"", 5);
        memcpy(line + s + 5, command, n);
        memcpy(line + s + 5 + n, "\"", 2);
        return line;
    }
    const char *fallback = (GetVersion() & 0x80000000u) ? "command.com /c " : "cmd.exe /c ";
    size_t f = strlen(fallback);
    char *line = static_cast<char *>(malloc(f + n + 1));
    if (line == nullptr) return nullptr;
    memcpy(line, fallback, f);
    memcpy(line + f, command, n + 1);
    return line;
}

} // namespace

extern "C" ORV_EXPORT int system(const char *command) {
    if (command == nullptr) return 1;
    char *line = command_line(command);
    if (line == nullptr) return -1;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info = {};
    if (!CreateProcessA(nullptr, line, nullptr, nullptr, 1, NORMAL_PRIORITY_CLASS, nullptr, nullptr,
                        &startup, &info)) {
        free(line);
        return -1;
    }
    int result = -1;
    DWORD code;
    if (WaitForSingleObject(info.hProcess, INFINITE) != WAIT_FAILED && GetExitCodeProcess(info.hProcess, &code))
        result = static_cast<int>(code);
    CloseHandle(info.hThread);
    CloseHandle(info.hProcess);
    free(line);
    return result;
}
