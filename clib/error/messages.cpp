#include "clib/error/messages.h"

namespace orv::errtext {
namespace {

const char *const known[] = {
    "no error",          // 0
    "domain error",      // EDOM
    "range error",       // ERANGE
    "bad file number",   // EBADF
    "i/o error",         // EIO
    "invalid argument",  // EINVAL
    "permission denied", // EACCES
    "too many open files", // EMFILE
};
constexpr int known_count = sizeof known / sizeof known[0];

// Never written: numbered texts are copied from it.
constexpr char numbered_template[message_buffer_size] = "error #xxxx";
constexpr unsigned first_digit = 7;

} // namespace

char *text_of(int errnum, char *buffer) {
    if (errnum < 0) return const_cast<char *>("unknown error");
    if (errnum < known_count) return const_cast<char *>(known[errnum]);
    for (unsigned k = 0; k < message_buffer_size; ++k) buffer[k] = numbered_template[k];
    // The last four decimal digits, leading zeros kept.
    unsigned n = static_cast<unsigned>(errnum);
    for (unsigned k = first_digit + 4; k > first_digit; n /= 10) buffer[--k] = static_cast<char>('0' + n % 10);
    return buffer;
}

} // namespace orv::errtext
