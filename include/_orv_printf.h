/* Formatted output: the engine, its sink record, and its front ends. */
#ifndef _ORV_PRINTF_H
#define _ORV_PRINTF_H
#include "_orv_defs.h"
#include "stdarg.h"

/* What the engine hands its characters to: put(character, context)
   answers -1 on failure. */
struct _orv_sink {
    void *context;
    int (*put)(int character, void *context);
};

_ORV_BEGIN
int _printf_(struct _orv_sink *sink, const char *format, const void *arguments);
int printf(const char *format, ...);
int vprintf(const char *format, va_list arguments);
int sprintf(char *buffer, const char *format, ...);
int vsprintf(char *buffer, const char *format, va_list arguments);
#ifdef _ORV_FILE_DEFINED
int fprintf(FILE *stream, const char *format, ...);
int vfprintf(FILE *stream, const char *format, va_list arguments);
#endif
_ORV_END

#endif
