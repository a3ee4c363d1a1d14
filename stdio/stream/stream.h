// What every stream operation shares: the two record arrays, the flag
// words, and the inline character step.
#pragma once

#include "include/stdio.h"
#include "runtime/export.h"

#include <cstddef>

// The library defines these names as functions; the header's macros are
// for compiled programs.
#undef getc
#undef putc
#undef getchar
#undef putchar
#undef feof
#undef ferror
#undef _fileno
#undef fileno

// The record that lives beside each FILE, at the same byte offset in
// _auxiob.
struct _auxiobuf {
    unsigned char *_end;   // end of the read data; _base when none is held
    unsigned char *_limit; // first byte behind the buffer
    char *_name;           // heap copy of the file name
    unsigned _onechar;     // the whole buffer of an unbuffered stream
    unsigned _spare[2];
};

static_assert(sizeof(FILE) == 24);
static_assert(offsetof(FILE, _cnt) == 0 && offsetof(FILE, _ptr) == 4 && offsetof(FILE, _base) == 8);
static_assert(offsetof(FILE, _bufsiz) == 12 && offsetof(FILE, _file) == 16 && offsetof(FILE, _flag) == 20);
static_assert(sizeof(_auxiobuf) == 24);
static_assert(offsetof(_auxiobuf, _end) == 0 && offsetof(_auxiobuf, _limit) == 4);
static_assert(offsetof(_auxiobuf, _name) == 8 && offsetof(_auxiobuf, _onechar) == 12);

extern "C" {
extern ORV_EXPORT _auxiobuf _auxiob[];
ORV_HIDDEN FILE *__open_stream(const char *path, const char *mode, int fd, FILE *stream);
ORV_HIDDEN int __stream_sync(FILE *stream, int writing);
}

namespace orv::stdio {

inline constexpr int stream_count = 350;
inline constexpr int no_descriptor = 0x7FFFFFFF;
inline constexpr unsigned short for_output = _IOWRT | _IORW;
inline constexpr unsigned short for_input = _IOREAD | _IORW;
inline constexpr unsigned short open_at_all = _IOREAD | _IOWRT | _IORW;

inline _auxiobuf &aux(FILE *s) { return _auxiob[s - _orviob]; }

inline bool in_array(const FILE *s) { return s >= _orviob && s < _orviob + stream_count; }

inline unsigned char *onechar(FILE *s) { return reinterpret_cast<unsigned char *>(&aux(s)._onechar); }

// The buffer is the stream's to free.
inline bool owns_buffer(FILE *s) {
    return s->_base != nullptr && !(s->_flag & _IOUSERBUF) && s->_base != onechar(s);
}

inline int get(FILE *s) { return --s->_cnt >= 0 ? *s->_ptr++ : _filbuf(s); }

inline int put(int c, FILE *s) {
    return --s->_cnt >= 0 ? (*s->_ptr++ = static_cast<unsigned char>(c)) : _flsbuf(c & 255, s);
}

// Runs of bytes moved as the inline step would move them one by one, with
// the same calls of _filbuf and _flsbuf at the same moments: only what the
// inline step would take without a call is copied as a block. Answer the
// bytes done, short at the first EOF.
std::size_t read_run(unsigned char *to, std::size_t want, FILE *s);
std::size_t write_run(const unsigned char *from, std::size_t want, FILE *s);

// Sets errno and answers the null stream.
FILE *fail_open(int code);

} // namespace orv::stdio
