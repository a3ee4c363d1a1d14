#include "stdio/stream/stream.h"

// The three standard streams are static records; the rest of both arrays
// starts as zero.
namespace {

unsigned char stdin_buffer[512];
unsigned char stdout_buffer[512];

} // namespace

extern "C" {

ORV_EXPORT FILE _orviob[orv::stdio::stream_count] = {
    {0, stdin_buffer, stdin_buffer, 512, 0, _IOREAD | _IOUSERBUF | _IOLBF, 0},
    {0, stdout_buffer, stdout_buffer, 512, 1, _IOWRT | _IOUSERBUF | _IOLBF, 0},
    {0, reinterpret_cast<unsigned char *>(&_auxiob[2]._onechar),
     reinterpret_cast<unsigned char *>(&_auxiob[2]._onechar), 1, 2, _IOWRT | _IONBF | _IOUSERBUF, 0},
};

ORV_EXPORT _auxiobuf _auxiob[orv::stdio::stream_count] = {
    {stdin_buffer, stdin_buffer + 512, nullptr, 0, {}},
    {stdout_buffer, stdout_buffer + 512, nullptr, 0, {}},
    {reinterpret_cast<unsigned char *>(&_auxiob[2]._onechar),
     reinterpret_cast<unsigned char *>(&_auxiob[2]._onechar) + 1, nullptr, 0, {}},
};

} // extern "C"
