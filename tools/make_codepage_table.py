#!/usr/bin/env python3
"""Writes src/codepage/codepage_table.cpp from data/cp936.tsv.

    tools/make_codepage_table.py           writes the file and prints what it holds
    tools/make_codepage_table.py --check   writes nothing; fails if the file would change

A row of the data is: the bytes in hexadecimal, the UTF-16 unit in hexadecimal, and "both" for a
pair that converts both ways or "encode" for a unit that has no bytes of its own and goes to those
of a look-alike.
"""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DATA = ROOT / "data" / "cp936.tsv"
TABLE = ROOT / "src" / "codepage" / "codepage_table.cpp"

LEADS = range(0x81, 0xFF)
TRAILS = range(0x40, 0xFF)
BLOCK = 64  # the units that differ in the last byte of their UTF-8 only


def read_data():
    """Returns {code: unit} for decoding and {unit: code} for encoding; two bytes make one code."""
    decode, encode = {}, {}
    for number, line in enumerate(DATA.read_text("ascii").splitlines(), 1):
        code, unit, direction = line.split("\t")
        size, code, unit = len(code) // 2, int(code, 16), int(unit, 16)
        where = f"{DATA.name}:{number}: "
        assert direction in ("both", "encode"), where + "unknown direction"
        assert unit not in encode, where + "unit stands twice"
        assert not 0xD800 <= unit <= 0xDFFF, where + "half of a surrogate pair"
        assert (code > 0xFF) == (size == 2), where + "code does not tell its size"
        assert size == 1 or code >> 8 in LEADS and code & 0xFF in TRAILS, where + "no such pair"
        encode[unit] = code
        if direction == "both":
            assert code not in decode, where + "bytes stand twice"
            decode[code] = unit
    assert all(decode.get(byte) == byte for byte in range(0x80)), "ASCII is not itself"
    assert not any(lead in decode for lead in LEADS), "a lead byte is a character of its own"
    return decode, encode


def make_blocks(encode):
    """Returns the cells and, for each run of BLOCK units, the index of its first cell."""
    cells, start_of, starts = [], {}, []
    for first in range(0, 0x10000, BLOCK):
        block = tuple(encode.get(unit, 0) for unit in range(first, first + BLOCK))
        if block not in start_of:
            start_of[block] = len(cells)
            cells.extend(block)
        starts.append(start_of[block])
    empty = start_of[(0,) * BLOCK]
    assert len(cells) < 0x10000
    return cells, starts, empty


def array(name, values):
    rows = [values[i : i + 12] for i in range(0, len(values), 12)]
    body = "\n".join("    " + " ".join(f"0x{value:04X}," for value in row) for row in rows)
    return f"\nconst std::uint16_t {name}[{len(values)}] = {{\n{body}\n}};\n"


def make_table():
    decode, encode = read_data()
    cells, starts, empty = make_blocks(encode)
    two_byte = starts[: 0x800 // BLOCK]
    three_byte = [empty] * len(two_byte) + starts[len(two_byte) :]
    arrays = {
        "decoded_singles": [decode.get(byte, 0) for byte in range(0x80, 0x100)],
        "decoded_pairs": [decode.get(pair, 0) for pair in range(0x8000, 0x10000)],
        "two_byte_blocks": two_byte,
        "three_byte_blocks": three_byte,
        "encoded_cells": cells,
    }
    counts = (
        f"{len(decode)} codes decode, {len(encode)} units encode, "
        f"{len(encode) - len(decode)} of them one way; {len(cells) // BLOCK} blocks of {BLOCK} "
        f"units; {2 * sum(map(len, arrays.values()))} bytes"
    )
    head = (
        f"// Written by tools/{Path(__file__).name} from data/{DATA.name}. Do not edit.\n"
        f"// {counts}.\n"
        "// clang-format off\n"
        '#include "codepage/codepage_table.h"\n\n'
        "namespace zeph {\n"
    )
    text = head + "".join(array(*item) for item in arrays.items()) + "\n}  // namespace zeph\n"
    return text, counts


def main():
    text, counts = make_table()
    if sys.argv[1:] == ["--check"]:
        if not TABLE.exists() or TABLE.read_bytes() != text.encode():
            sys.exit(f"{TABLE.relative_to(ROOT)} is not what the data gives: run {sys.argv[0]}")
    elif sys.argv[1:]:
        sys.exit(__doc__)
    else:
        TABLE.write_bytes(text.encode())
    print(counts)


main()
