// The texts of the error numbers.
#pragma once

namespace orv::errtext {

// "error #" and four digits, and the terminator.
inline constexpr unsigned message_buffer_size = 12;

// The text of errnum: a constant message for 0 to 7 and for negative
// numbers, else the numbered template filled into buffer.
char *text_of(int errnum, char *buffer);

} // namespace orv::errtext
