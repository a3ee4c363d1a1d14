#include "../../kernel32.h"

namespace {
// The process has one heap; its handle only has to be distinct and stable.
constinit int process_heap_object = 0;
} // namespace

extern "C" K32_API HANDLE WINAPI GetProcessHeap(void) { return &process_heap_object; }
