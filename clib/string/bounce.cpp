// The block moves that the fast upward string move cannot do in one go:
// downward over the block's own source, and upward where it would be slow.
// Both go in pieces through a buffer in the frame. That costs a second
// pass, but a pass of the string move is several times faster than a loop
// of general registers.
#include "clib/string/block.h"

using namespace orv::block;

namespace {

// Large enough that the start-up of the string move is small beside its
// work, small enough that the piece, its source and its destination stay
// in the first-level cache.
constexpr std::size_t piece_bytes = 8192;
constexpr std::size_t area_bytes = piece_bytes + 192;

// Blocks this far apart and more go down in pieces as long as the gap
// with no buffer; closer, the start-up of many short moves costs more
// than a second pass.
constexpr std::size_t direct_gap = 1024;

// The buffer lies at the source's place within a cache line, which makes
// the move into it the fastest kind, but not at its very place within a
// page, nor where the move out of it would be slow. Each of the two rules
// rejects one place in 64, so two steps on at most. The placement holds for
// every piece, as the pieces step d and s alike.
byte *place(byte *area, const byte *d, const byte *s) {
    byte *buffer = area + ((address(s) - address(area)) & 63);
    while (page_offset(buffer, s) == 0 || string_move_is_slow(d, buffer)) buffer += 64;
    return buffer;
}

void through(byte *buffer, byte *d, const byte *s, std::size_t n) {
    string_move(buffer, s, n);
    string_move(d, buffer, n);
}

} // namespace

extern "C" ORV_HIDDEN void __move_up_bounced(byte *d, const byte *s, std::size_t n) {
    byte area[area_bytes];
    byte *buffer = place(area, d, s);
    for (std::size_t piece; n != 0; d += piece, s += piece, n -= piece) {
        piece = n < piece_bytes ? n : piece_bytes;
        through(buffer, d, s, piece);
    }
}

extern "C" ORV_HIDDEN void __move_down_overlapping(byte *d, const byte *s, std::size_t n) {
    std::size_t gap = static_cast<std::size_t>(d - s);
    d += n, s += n;
    if (gap >= direct_gap && !string_move_is_slow(d, s)) {
        // A piece no longer than the gap overwrites no source byte still to
        // be read; what is left at the front no longer overlaps.
        for (; n >= gap; n -= gap) {
            d -= gap, s -= gap;
            string_move(d, s, gap);
        }
        return string_move(d - n, s - n, n);
    }
    byte area[area_bytes];
    byte *buffer = place(area, d, s);
    for (std::size_t piece; n != 0; n -= piece) {
        piece = n < piece_bytes ? n : piece_bytes;
        d -= piece, s -= piece;
        through(buffer, d, s, piece);
    }
}
