/*
 * The kernel interface that liborv is written against: the subset of the
 * platform's KERNEL32 that the library calls, with the platform's types,
 * calling convention (stdcall), constants and failure answers.
 *
 * On i386 Linux the functions come from libkernel32.so (platform/linux/).
 * Usable from C and C++.
 */
#ifndef ORV_PLATFORM_KERNEL32_H
#define ORV_PLATFORM_KERNEL32_H

#ifdef __cplusplus
extern "C" {
#endif

#define WINAPI __attribute__((stdcall))
#define K32_API __attribute__((visibility("default")))

typedef void *HANDLE;
typedef void *LPVOID;
typedef const void *LPCVOID;
typedef unsigned long DWORD;
typedef DWORD *LPDWORD;
typedef long LONG;
typedef LONG *PLONG;
typedef int BOOL;
typedef unsigned long SIZE_T;
typedef unsigned short WORD;
typedef unsigned int UINT;
typedef char *LPSTR;
typedef const char *LPCSTR;

#define INVALID_HANDLE_VALUE ((HANDLE)-1)
#define INVALID_SET_FILE_POINTER ((DWORD)-1)

/* Standard handles */
#define STD_INPUT_HANDLE ((DWORD)-10)
#define STD_OUTPUT_HANDLE ((DWORD)-11)
#define STD_ERROR_HANDLE ((DWORD)-12)

/* CreateFileA */
#define GENERIC_READ 0x80000000UL
#define GENERIC_WRITE 0x40000000UL
#define FILE_SHARE_READ 0x1
#define FILE_SHARE_WRITE 0x2
#define CREATE_NEW 1
#define CREATE_ALWAYS 2
#define OPEN_EXISTING 3
#define OPEN_ALWAYS 4
#define TRUNCATE_EXISTING 5
#define FILE_ATTRIBUTE_NORMAL 0x80

/* SetFilePointer move methods */
#define FILE_BEGIN 0
#define FILE_CURRENT 1
#define FILE_END 2

/* GetFileType */
#define FILE_TYPE_UNKNOWN 0
#define FILE_TYPE_DISK 1
#define FILE_TYPE_CHAR 2
#define FILE_TYPE_PIPE 3

/* Heap flags */
#define HEAP_NO_SERIALIZE 0x1
#define HEAP_GENERATE_EXCEPTIONS 0x4
#define HEAP_ZERO_MEMORY 0x8
#define HEAP_REALLOC_IN_PLACE_ONLY 0x10

/* GetLastError codes */
#define ERROR_SUCCESS 0
#define ERROR_INVALID_FUNCTION 1
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_PATH_NOT_FOUND 3
#define ERROR_TOO_MANY_OPEN_FILES 4
#define ERROR_ACCESS_DENIED 5
#define ERROR_INVALID_HANDLE 6
#define ERROR_NOT_ENOUGH_MEMORY 8
#define ERROR_WRITE_FAULT 29
#define ERROR_READ_FAULT 30
#define ERROR_SHARING_VIOLATION 32
#define ERROR_HANDLE_EOF 38
#define ERROR_NOT_SUPPORTED 50
#define ERROR_FILE_EXISTS 80
#define ERROR_INVALID_PARAMETER 87
#define ERROR_BROKEN_PIPE 109
#define ERROR_DISK_FULL 112
#define ERROR_NEGATIVE_SEEK 131
#define ERROR_DIR_NOT_EMPTY 145
#define ERROR_ALREADY_EXISTS 183
#define ERROR_FILENAME_EXCED_RANGE 206

/* Structured exceptions: the part the SSE probe needs. */
#define EXCEPTION_ILLEGAL_INSTRUCTION 0xC000001DUL
#define EXCEPTION_MAXIMUM_PARAMETERS 15

typedef enum _EXCEPTION_DISPOSITION {
    ExceptionContinueExecution = 0,
    ExceptionContinueSearch = 1,
    ExceptionNestedException = 2,
    ExceptionCollidedUnwind = 3
} EXCEPTION_DISPOSITION;

typedef struct _EXCEPTION_RECORD {
    DWORD ExceptionCode;
    DWORD ExceptionFlags;
    struct _EXCEPTION_RECORD *ExceptionRecord;
    LPVOID ExceptionAddress;
    DWORD NumberParameters;
    DWORD ExceptionInformation[EXCEPTION_MAXIMUM_PARAMETERS];
} EXCEPTION_RECORD;

typedef struct _FLOATING_SAVE_AREA {
    DWORD ControlWord;
    DWORD StatusWord;
    DWORD TagWord;
    DWORD ErrorOffset;
    DWORD ErrorSelector;
    DWORD DataOffset;
    DWORD DataSelector;
    unsigned char RegisterArea[80];
    DWORD Cr0NpxState;
} FLOATING_SAVE_AREA;

/* The i386 register context, in the platform's layout. */
typedef struct _CONTEXT {
    DWORD ContextFlags;
    DWORD Dr0, Dr1, Dr2, Dr3, Dr6, Dr7;
    FLOATING_SAVE_AREA FloatSave;
    DWORD SegGs, SegFs, SegEs, SegDs;
    DWORD Edi, Esi, Ebx, Edx, Ecx, Eax;
    DWORD Ebp, Eip, SegCs, EFlags, Esp, SegSs;
    unsigned char ExtendedRegisters[512];
} CONTEXT;

struct _EXCEPTION_REGISTRATION_RECORD;
typedef EXCEPTION_DISPOSITION (*PEXCEPTION_ROUTINE)(EXCEPTION_RECORD *record,
                                                   void *establisher_frame,
                                                   CONTEXT *context,
                                                   void *dispatcher_context);

/* One link of a thread's structured exception chain; the chain ends in -1. */
typedef struct _EXCEPTION_REGISTRATION_RECORD {
    struct _EXCEPTION_REGISTRATION_RECORD *Next;
    PEXCEPTION_ROUTINE Handler;
} EXCEPTION_REGISTRATION_RECORD;

#define EXCEPTION_CHAIN_END ((EXCEPTION_REGISTRATION_RECORD *)-1)

typedef struct _NT_TIB {
    EXCEPTION_REGISTRATION_RECORD *ExceptionList;
    LPVOID StackBase;
    LPVOID StackLimit;
    LPVOID SubSystemTib;
    LPVOID FiberData;
    LPVOID ArbitraryUserPointer;
    struct _NT_TIB *Self;
} NT_TIB;

/*
 * The thread information block. The platform reads it through a segment
 * register; the stand-in hands it out through this call.
 */
K32_API NT_TIB *WINAPI NtCurrentTeb(void);

/* Errors */
K32_API DWORD WINAPI GetLastError(void);
K32_API void WINAPI SetLastError(DWORD code);

/* Heap */
K32_API HANDLE WINAPI GetProcessHeap(void);
K32_API LPVOID WINAPI HeapAlloc(HANDLE heap, DWORD flags, SIZE_T bytes);
K32_API BOOL WINAPI HeapFree(HANDLE heap, DWORD flags, LPVOID block);
K32_API LPVOID WINAPI HeapReAlloc(HANDLE heap, DWORD flags, LPVOID block,
                                  SIZE_T bytes);
K32_API SIZE_T WINAPI HeapSize(HANDLE heap, DWORD flags, LPCVOID block);

/* Files and standard handles */
K32_API HANDLE WINAPI CreateFileA(LPCSTR name, DWORD access, DWORD share,
                                  LPVOID security, DWORD disposition,
                                  DWORD attributes, HANDLE template_file);
K32_API BOOL WINAPI CloseHandle(HANDLE handle);
K32_API BOOL WINAPI ReadFile(HANDLE handle, LPVOID buffer, DWORD count,
                             LPDWORD done, LPVOID overlapped);
K32_API BOOL WINAPI WriteFile(HANDLE handle, LPCVOID buffer, DWORD count,
                              LPDWORD done, LPVOID overlapped);
K32_API DWORD WINAPI SetFilePointer(HANDLE handle, LONG distance,
                                    PLONG distance_high, DWORD method);
K32_API DWORD WINAPI GetFileType(HANDLE handle);
K32_API HANDLE WINAPI GetStdHandle(DWORD which);
K32_API BOOL WINAPI MoveFileA(LPCSTR existing, LPCSTR new_name);
K32_API BOOL WINAPI DeleteFileA(LPCSTR name);

/* Process */
K32_API __attribute__((noreturn)) void WINAPI ExitProcess(UINT status);


/* ---- Time: clocks, file times and the time zone ---------------------- */

typedef unsigned short WCHAR;

/* 100-nanosecond ticks since 1 January 1601 UTC, low word first. */
typedef struct _FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME;

typedef struct _SYSTEMTIME {
    WORD wYear;
    WORD wMonth;        /* 1 to 12 */
    WORD wDayOfWeek;    /* 0 for Sunday */
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
} SYSTEMTIME;

/* UTC = local time + Bias (+ StandardBias or DaylightBias), in minutes.
   StandardDate and DaylightDate tell when each period begins: wYear 0
   means "the wDay-th (5: last) wDayOfWeek of wMonth" in every year. */
typedef struct _TIME_ZONE_INFORMATION {
    LONG Bias;
    WCHAR StandardName[32];
    SYSTEMTIME StandardDate;
    LONG StandardBias;
    WCHAR DaylightName[32];
    SYSTEMTIME DaylightDate;
    LONG DaylightBias;
} TIME_ZONE_INFORMATION;

#define TIME_ZONE_ID_UNKNOWN 0
#define TIME_ZONE_ID_STANDARD 1
#define TIME_ZONE_ID_DAYLIGHT 2
#define TIME_ZONE_ID_INVALID ((DWORD)0xFFFFFFFF)

K32_API DWORD WINAPI GetTimeZoneInformation(TIME_ZONE_INFORMATION *info);
K32_API void WINAPI GetSystemTime(SYSTEMTIME *st);
K32_API void WINAPI GetLocalTime(SYSTEMTIME *st);
K32_API void WINAPI GetSystemTimeAsFileTime(FILETIME *ft);
K32_API BOOL WINAPI FileTimeToLocalFileTime(const FILETIME *ft, FILETIME *local);
K32_API BOOL WINAPI LocalFileTimeToFileTime(const FILETIME *local, FILETIME *ft);
K32_API BOOL WINAPI FileTimeToSystemTime(const FILETIME *ft, SYSTEMTIME *st);
K32_API BOOL WINAPI SystemTimeToFileTime(const SYSTEMTIME *st, FILETIME *ft);
/* Low byte major version, next byte minor, top bit set off the NT line. */
K32_API DWORD WINAPI GetVersion(void);

/* ---- end of the time block ------------------------------------------- */


/* ---- File-system queries: status, times, searches, pipes --------------- */

#define MAX_PATH 260
#define INVALID_FILE_ATTRIBUTES ((DWORD)0xFFFFFFFF)
#define FILE_ATTRIBUTE_READONLY 0x1
#define FILE_ATTRIBUTE_DIRECTORY 0x10
#define FILE_ATTRIBUTE_ARCHIVE 0x20
#define ERROR_NO_MORE_FILES 18

typedef struct _WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    char cFileName[MAX_PATH];
    char cAlternateFileName[14];
} WIN32_FIND_DATAA;

typedef struct _BY_HANDLE_FILE_INFORMATION {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD dwVolumeSerialNumber;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD nNumberOfLinks;
    DWORD nFileIndexHigh;
    DWORD nFileIndexLow;
} BY_HANDLE_FILE_INFORMATION;

/* `*` and `?` match in the last component only; a root such as C:\ fails. */
K32_API HANDLE WINAPI FindFirstFileA(LPCSTR pattern, WIN32_FIND_DATAA *data);
K32_API BOOL WINAPI FindClose(HANDLE find);
K32_API DWORD WINAPI GetFileAttributesA(LPCSTR name);
K32_API BOOL WINAPI GetFileInformationByHandle(HANDLE file, BY_HANDLE_FILE_INFORMATION *info);
K32_API BOOL WINAPI PeekNamedPipe(HANDLE pipe, LPVOID buffer, DWORD size, LPDWORD read,
                                  LPDWORD available, LPDWORD left);
/* A null time leaves that time as it is. */
K32_API BOOL WINAPI SetFileTime(HANDLE file, const FILETIME *creation,
                                const FILETIME *last_access, const FILETIME *last_write);

/* The temporary directory, ending in a separator: the length stored, the
   size needed with the terminator when `size` is too small, 0 on failure. */
K32_API DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer);

/* ---- end of the file-system block -------------------------------------- */

/* ---- Environment and processes ----------------------------------------- */

#define NORMAL_PRIORITY_CLASS 0x20
#define INFINITE ((DWORD)0xFFFFFFFF)
#define WAIT_OBJECT_0 0
#define WAIT_FAILED ((DWORD)0xFFFFFFFF)
#define STILL_ACTIVE 259
#define ERROR_ENVVAR_NOT_FOUND 203
#define ERROR_FILE_NOT_FOUND 2

typedef struct _STARTUPINFOA {
    DWORD cb;
    LPSTR lpReserved, lpDesktop, lpTitle;
    DWORD dwX, dwY, dwXSize, dwYSize, dwXCountChars, dwYCountChars, dwFillAttribute, dwFlags;
    unsigned short wShowWindow, cbReserved2;
    unsigned char *lpReserved2;
    HANDLE hStdInput, hStdOutput, hStdError;
} STARTUPINFOA;

typedef struct _PROCESS_INFORMATION {
    HANDLE hProcess;
    HANDLE hThread;
    DWORD dwProcessId;
    DWORD dwThreadId;
} PROCESS_INFORMATION;

K32_API DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size);
K32_API BOOL WINAPI CreateProcessA(LPCSTR application, LPSTR command_line, void *process_attributes,
                                   void *thread_attributes, BOOL inherit_handles, DWORD flags,
                                   void *environment, LPCSTR directory, STARTUPINFOA *startup,
                                   PROCESS_INFORMATION *info);
K32_API DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
K32_API BOOL WINAPI GetExitCodeProcess(HANDLE process, LPDWORD code);

#ifdef __cplusplus
static_assert(sizeof(STARTUPINFOA) == 68, "STARTUPINFO is 68 bytes");
static_assert(sizeof(PROCESS_INFORMATION) == 16, "PROCESS_INFORMATION is 16 bytes");
#endif

/* ---- end of the process block ------------------------------------------ */

#ifdef __cplusplus
}
#endif

#endif
