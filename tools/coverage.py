#!/usr/bin/env python3
"""coverage.py NAME...

Merges what several builds of the library ran, as llvm-cov exports it to NAME.json and, line by
line, to NAME.lcov. Prints lines, branches and independent conditions, covered of all, for each source and in sum. A line, a direction of a
branch or a condition counts as covered if any build covered it. Names what is not covered, except
for the places of tests/uncovered.txt, one a line:

    FILE | the source line, without its indentation | why no test can run it

A source line that ends with { stands for its whole block. Generated tables are left out. Ends with
1 if something is uncovered and not listed, or listed and covered.
"""
import collections
import json
import os
import re
import sys

GENERATED = re.compile(r'_(table|data)\.(cpp|h)$')


class Source:
    """What was run of one file. Keys are places; values tell whether any build ran them."""

    def __init__(self, path):
        self.text = [''] + open(path, encoding='utf-8').read().split('\n')
        self.lines = collections.defaultdict(bool)
        self.branches = collections.defaultdict(bool)
        self.conditions = collections.defaultdict(bool)

    def add(self, record):
        for branch in record['branches']:
            for direction, count in (('true', branch[4]), ('false', branch[5])):
                self.branches[branch[0], branch[1], direction] |= count > 0
        for decision in record.get('mcdc_records', []):
            for number, independent in enumerate(decision[-1]):
                self.conditions[decision[0], decision[1], number] |= independent

    def block(self, first):
        """The lines of the block that line `first` opens; that line alone if it opens none."""
        if not self.text[first].endswith('{'):
            return range(first, first + 1)
        indent = len(self.text[first]) - len(self.text[first].lstrip())
        last = first + 1
        while not re.match(' {%d}\\S' % indent, self.text[last]):
            last += 1
        return range(first, last + 1)


def exceptions(sources):
    """The listed places as {file: {line: text of the exception}}."""
    listed = collections.defaultdict(dict)
    for row in open('tests/uncovered.txt', encoding='utf-8'):
        if row.strip() and not row.startswith('#'):
            file, text, _ = (part.strip() for part in row.split(' | ', 2))
            first = [n for n, line in enumerate(sources[file].text) if line.strip() == text]
            if not first:
                sys.exit('tests/uncovered.txt: no such line: ' + row)
            for start in first:
                for line in sources[file].block(start):
                    listed[file][line] = row.strip()
    return listed


def share(places, listed):
    counted = [ran for place, ran in places.items() if line_of(place) not in listed]
    return sum(counted), len(counted)


def line_of(place):
    return place if isinstance(place, int) else place[0]


def figure(pair):
    covered, total = pair
    return '%5d/%-5d %5.1f %%' % (covered, total, 100.0 * covered / total if total else 100.0)


def main():
    sources = {}
    for name in sys.argv[1:]:
        for record in json.load(open(name + '.json', encoding='utf-8'))['data'][0]['files']:
            file = os.path.relpath(record['filename'])
            if file.startswith('src/') and not GENERATED.search(file):
                sources.setdefault(file, Source(file)).add(record)
        for row in open(name + '.lcov', encoding='utf-8'):
            if row.startswith('SF:'):
                source = sources.get(os.path.relpath(row[3:].strip()))
            elif row.startswith('DA:') and source:
                line, count = map(int, row[3:].split(','))
                source.lines[line] |= count > 0
    listed = exceptions(sources)

    sums = [[0, 0], [0, 0], [0, 0]]
    for file, source in sorted(sources.items()):
        shares = [share(places, listed[file])
                  for places in (source.lines, source.branches, source.conditions)]
        for total, part in zip(sums, shares):
            total[0] += part[0]
            total[1] += part[1]
        print('%-34s %s' % (file, '  '.join(map(figure, shares))))
    print('%-34s %s' % ('lines, branches, conditions', '  '.join(map(figure, sums))))

    faults, needed = 0, set()
    for file, source in sorted(sources.items()):
        missed = {line: 'line' for line, ran in source.lines.items() if not ran}
        for (line, column, direction), ran in source.branches.items():
            if not ran:
                missed.setdefault(line, 'never %s at column %d' % (direction, column))
        for line, what in sorted(missed.items()):
            if line in listed[file]:
                needed.add(listed[file][line])
            else:
                faults += 1
                print('%s:%d: %s: %s' % (file, line, what, source.text[line].strip()))
    for row in sorted({row for rows in listed.values() for row in rows.values()} - needed):
        faults += 1
        print('listed, but covered: ' + row)
    print('%d places listed as out of reach' % len(needed))
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
