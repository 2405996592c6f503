#!/usr/bin/env python3
"""Makes src/syserror/message_table.cpp of data/system-messages.tsv.

  make_message_table.py          writes the table
  make_message_table.py --check  writes nothing; fails if the table is not what would be written

A row of the data is a code, a tab and the whole text, in UTF-8; the codes rise. The table holds the
texts in code page 936, one row a line.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DATA = ROOT / 'data' / 'system-messages.tsv'
TABLE = ROOT / 'src' / 'syserror' / 'message_table.cpp'
HIGHEST_CODE = 1398
RESULT_SIZE = 512
STARTS_A_LINE = 14


def read_rows():
    """The rows as (code, text), proved to be what the lookup relies on."""
    rows = []
    for line in DATA.read_text(encoding='utf-8').splitlines():
        code, text = line.split('\t')
        stated = re.fullmatch(r'系统(?:错误)?信息:\[(\d+)\]-[^%]+', text)
        if not stated or stated.group(1) != code:
            sys.exit(f'{DATA}: the text of row {code} does not name its code')
        if rows and int(code) <= rows[-1][0]:
            sys.exit(f'{DATA}: row {code} is out of order')
        if len(text.encode('cp936')) >= RESULT_SIZE:
            sys.exit(f'{DATA}: row {code} is too long')
        rows.append((int(code), text))
    if rows[-1][0] != HIGHEST_CODE:
        sys.exit(f'{DATA}: the last code is not {HIGHEST_CODE}')
    return rows


def literal(text):
    """The text in code page 936 as a C string literal. Octal escapes end by themselves."""
    return '"' + ''.join(chr(b) if 0x20 <= b < 0x7F and b not in b'"\\?' else f'\\{b:03o}'
                         for b in text.encode('cp936')) + '"'


def starts(rows):
    """For each code and one more the index of its first byte in the joined texts."""
    sizes = {code: len(text.encode('cp936')) for code, text in rows}
    result = [0]
    for code in range(HIGHEST_CODE + 1):
        result.append(result[-1] + sizes.get(code, 0))
    return result


def table(rows):
    index = starts(rows)
    lines = [
        '// Made by tools/make_message_table.py from data/system-messages.tsv. Do not edit.',
        f'// {len(rows)} rows, {index[-1]} bytes of text, codes 0 to {HIGHEST_CODE}.',
        '#include "syserror/message_table.h"',
        '',
        'const char zeph::message_texts[] =',
        *(f'    {literal(text)}  // {text}' for code, text in rows),
        '    ;',
        f'static_assert(sizeof zeph::message_texts == {index[-1]} + 1);',
        '',
        'const std::uint16_t zeph::message_starts[highest_message_code + 2] = {',
        *('    ' + ' '.join(f'{start},' for start in index[at:at + STARTS_A_LINE])
          for at in range(0, len(index), STARTS_A_LINE)),
        '};',
    ]
    return '\n'.join(lines) + '\n'


def main():
    if sys.argv[1:] not in ([], ['--check']):
        sys.exit(__doc__)
    wanted = table(read_rows()).encode('utf-8')
    if sys.argv[1:]:
        if TABLE.read_bytes() != wanted:
            sys.exit(f'{TABLE} is not what {DATA} gives: run {sys.argv[0]}')
        return
    new = TABLE.with_suffix('.new')
    new.write_bytes(wanted)
    new.replace(TABLE)


main()
