// The last-resort diagnostics and their one route to the error stream.
#pragma once

// __pure_error_ is for compiled virtual tables: no header declares it.
extern "C" void __pure_error_(void);

namespace orv::diag {

inline constexpr char assertion_format[] = "***Assertion failed in file %s line %d:\n\t%s\n";
inline constexpr char pure_virtual_text[] = "****Pure virtual function called\n";

// Everything the diagnostics write or stop with goes through these four,
// kept together in stderr_sink.cpp.
void put_text(const char *text);                                    // fputs(text, stderr)
void put_char(int c);                                               // fputc(c, stderr)
void put_assertion(const char *file, int line, const char *text);   // fprintf(stderr, assertion_format, ...)
void stop();                                                        // abort()

} // namespace orv::diag
