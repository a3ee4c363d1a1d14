// A command line split into arguments by the platform's rules.
#pragma once

namespace orv::k32 {

// Splits `line` into `argv` (at most max_args - 1 entries, null-ended),
// writing the argument texts into `text` (at least as long as the line
// plus one). Returns the argument count.
//
// The program name ends at the first blank unless it is quoted; it takes
// no escapes. In the other arguments 2n backslashes before a quote give n
// backslashes and the quote opens or closes a quoted run, 2n+1 give n and
// a literal quote; a doubled quote inside a run is a literal quote;
// backslashes before anything else are plain characters.
int split_command_line(const char *line, char *text, char **argv, int max_args);

} // namespace orv::k32
