// Code page 936 against UTF-16 units, in both directions. tools/make_codepage_table.py writes the
// tables. A zero cell says that there is nothing to convert to; no table is asked about ASCII.
#ifndef ZEPH_CODEPAGE_CODEPAGE_TABLE_H
#define ZEPH_CODEPAGE_CODEPAGE_TABLE_H

#include <cstddef>
#include <cstdint>

namespace zeph {

// The unit of a single byte from 0x80 on, zero for a lead byte.
extern const std::uint16_t decoded_singles[0x80];

// The unit of two bytes: the low seven bits of the first and all bits of the second are the index.
extern const std::uint16_t decoded_pairs[0x8000];

// The other way each run of 64 units, the ones whose UTF-8 differs in the last byte only, is a
// block of cells, and equal blocks are one. A cell above 0xFF holds a lead byte and a trail byte.
// The indexes give a block's first cell from the payload bits of the bytes in front of the last.
// Three bytes that UTF-8 forbids, the overlong ones and the halves of surrogate pairs, lead to the
// block of zeros.
constexpr unsigned block_size = 64;
extern const std::uint16_t two_byte_blocks[0x800 / block_size];
extern const std::uint16_t three_byte_blocks[0x10000 / block_size];
extern const std::uint16_t encoded_cells[];

}  // namespace zeph

#endif  // ZEPH_CODEPAGE_CODEPAGE_TABLE_H
