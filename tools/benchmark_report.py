#!/usr/bin/env python3
"""benchmark_report.py BUILD OUT.md OUT.svg RUN.json... THREADS.json HEAP.json

Writes the page and the chart out of what zeph_bench, zeph_footprint and zeph_load_time measured. Of
several runs each row shows the median of its ratios: a run is one process, and its rounds of Zeph
and of the peers are shuffled. BUILD is the build folder, of which the sizes are read.
"""
import json
import math
import os
import platform
import re
import statistics
import subprocess
import sys
import tempfile

VERSION = '_ZN6Orbane17Zeph_Version_InfoEv'
DRAW = 0.97  # within three parts in a hundred


def output(*command):
    try:
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout.strip()
    except (OSError, subprocess.CalledProcessError):
        return ''


def first_match(pattern, text):
    found = re.search(pattern, text, re.M)
    return found.group(1).strip() if found else 'unknown'


class Row:
    """One operation on one input: its timings of all runs."""

    def __init__(self, found):
        first = found[0]
        self.family, self.operation = first['family'], first['operation'].strip()
        self.input, self.bytes, self.reason = first['input'], first['bytes'], first['reason']
        self.growth = bool(first['growth'])
        self.times, self.ratios, self.differs = {}, {}, {}
        for row in found:
            for timing in row['timings']:
                key = (timing['kind'], timing['who'])
                self.times.setdefault(key, []).append(timing['ns'])
                self.ratios.setdefault(timing['who'], []).append(timing.get('ratio'))
                self.differs[timing['who']] = timing['differs']

    def median(self, kind, who):
        return statistics.median(self.times[(kind, who)])

    @property
    def zeph(self):
        return self.median('zeph', 'Zeph')

    @property
    def requests(self):
        return self.times.get(('requests', 'requests'))

    def ratio(self, peer):
        return statistics.median(self.ratios[peer])

    def best(self):
        """The peer that is hardest to beat, and the ratio to it."""
        peers = [who for kind, who in self.times if kind == 'peer']
        return min(((self.ratio(who), who) for who in peers), default=None)

    def share(self):
        """How much of the time the machine's own limit takes; for long texts only."""
        limits = [who for kind, who in self.times if kind == 'limit']
        if not limits or (self.bytes < 4096 and self.bytes > 1):
            return ''
        return '%.0f %% (%s)' % (100 * self.median('limit', limits[0]) / self.zeph, limits[0])


def load_rows(paths):
    found = {}
    for path in paths:
        for row in json.load(open(path))['rows']:
            key = (row['growth'], row['family'], row['operation'], row['input'])
            found.setdefault(key, []).append(row)
    return [Row(rows) for rows in found.values()]


def time_text(ns):
    if ns >= 1e6:
        return '%.2f ms' % (ns / 1e6)
    return '%.1f us' % (ns / 1e3) if ns >= 1e4 else '%.1f' % ns


def table(head, rows):
    """Of what an input holds, '<' would start a tag; in code it stands for itself."""
    lines = ['| ' + ' | '.join(head) + ' |', '|' + ' --- |' * len(head)]

    def text(cell):
        cell = str(cell).replace('|', '\\|')
        return cell if cell.startswith('`') else cell.replace('<', '&lt;')

    return lines + ['| ' + ' | '.join(map(text, row)) + ' |' for row in rows]


def geometric_mean(values):
    return math.exp(sum(math.log(value) for value in values) / len(values))


def machine_lines():
    cpu = first_match(r'^model name\s*:\s*(.*)$', open('/proc/cpuinfo').read())
    packages = {'abseil': 'libabsl-dev', 'Boost': 'libboost-dev', '{fmt}': 'libfmt-dev', 'RE2': 'libre2-dev',
                'fast_float': 'libfast-float-dev', 'ICU': 'libicu-dev', 'OpenSSL': 'libssl-dev'}
    versions = ['%s %s' % (name, output('dpkg-query', '-W', '-f', '${Version}', package) or 'not installed')
                for name, package in packages.items()]
    return ['- Processor: %s, %d cores; kernel %s' % (cpu, os.cpu_count(), platform.release()),
            '- Compiler: %s, C library: %s' % (output('g++', '--version').split('\n')[0],
                                              ' '.join(platform.libc_ver())),
            '- Peers: ' + ', '.join(versions)]


def summary(ratios):
    ahead = sum(ratio >= 1 for ratio in ratios)
    level = sum(DRAW <= ratio < 1 for ratio in ratios)
    return ('%d rows: %d ahead of the best peer, %d level with it (within 3 %%), %d behind; that is %.1f %% ahead or '
            'level. Geometric mean of all ratios: %.2f.' %
            (len(ratios), ahead, level, len(ratios) - ahead - level, 100 * (ahead + level) / len(ratios),
             geometric_mean(ratios)))


def family_summary(rows):
    """A line for each family: its rows, and its means on short, middling and long texts."""
    spans = ((0, 128), (128, 16384), (16384, math.inf))

    def line(name, found):
        ratios = [row.best()[0] for row in found]
        means = []
        for low, high in spans:
            here = [row.best()[0] for row in found if low <= row.bytes < high]
            means.append('%.2f (%d)' % (geometric_mean(here), len(here)) if here else '')
        behind = sum(ratio < DRAW for ratio in ratios)
        return name, len(found), behind, '%.2f' % geometric_mean(ratios), *means

    families = sorted({row.family for row in rows})
    return table(('family', 'rows', 'behind', 'geometric mean', 'below 128 bytes (rows)', 'below 16 KiB', 'longer'),
                 [line(family, [row for row in rows if row.family == family]) for family in families] +
                 [line('all', rows)])


def family_tables(rows):
    lines = []
    for family in sorted({row.family for row in rows}):
        lines += ['', '### ' + family, '']
        cells = []
        for row in rows:
            if row.family != family or not row.best():
                continue
            ratio, peer = row.best()
            mark = ' + requests' if row.requests else ''
            cells.append((row.operation, row.input, time_text(row.zeph), peer + mark,
                          time_text(row.median('peer', peer) + statistics.median(row.requests or [0])),
                          '**%.2f**' % ratio if ratio < DRAW else '%.2f' % ratio, row.share()))
        lines += table(('operation', 'input', 'Zeph ns', 'best peer', 'ns', 'ratio', 'share of the limit'), cells)
    return lines


def behind_lines(rows):
    """The operations behind, together where they have the reason in common; the rows stand in the tables."""
    reasons, counts = {}, {}
    for row in rows:
        counts[row.operation] = counts.get(row.operation, 0) + 1
        if row.best()[0] < DRAW:
            reasons.setdefault(row.reason, {}).setdefault(row.operation, []).append(row.best()[0])
    lines = []
    for why, found in sorted(reasons.items(), key=lambda item: min(map(min, item[1].values()))):
        lines += ['', '%s:' % (why[0].upper() + why[1:]), '']
        cells = [('`%s`' % operation, '%d of %d' % (len(ratios), counts[operation]), '%.2f' % min(ratios),
                  '%.2f' % max(ratios))
                 for operation, ratios in sorted(found.items(), key=lambda item: min(item[1]))]
        lines += table(('operation', 'rows behind', 'from', 'to'), cells)
    return lines[1:]


def differing_lines(rows):
    found = sorted({(row.family, who, why) for row in rows for who, why in row.differs.items() if why})
    return ['- %s, %s: %s' % one for one in found]


def growth_table(points):
    sizes = []
    curves = {}
    for row in points:
        if row.input not in sizes:
            sizes.append(row.input)
        curves.setdefault((row.family, row.operation), {})[row.input] = row.zeph / row.bytes
    cells = []
    for (family, operation), curve in curves.items():
        growth = curve[sizes[2]] / curve[sizes[0]]
        cells.append((family, operation, *('%.3f' % curve[size] for size in sizes), '%.2f' % growth))
    return table(('family', 'operation', *sizes, sizes[2] + ' : ' + sizes[0]), cells)


def load_times(build):
    """Medians in microseconds, of the library and of one with nothing in it."""
    program = build + '/bench/zeph_load_time'
    pairs = ((build + '/src/libzeph.so', VERSION), (build + '/bench/libzeph_empty.so', 'zeph_empty'))
    times = ([], [])
    for _ in range(31):
        for found, (library, function) in zip(times, pairs):
            found.append(int(subprocess.check_output([program, library, function])) / 1000)
    return [statistics.median(found) for found in times]


def footprint_lines(build, heap):
    library = build + '/src/libzeph.so'
    with tempfile.TemporaryDirectory() as folder:
        stripped = folder + '/libzeph.so'
        subprocess.run(['strip', '-o', stripped, library], check=True)
        size = os.path.getsize(stripped)
    sections = {line.split()[0]: int(line.split()[1])
                for line in output('size', '-A', library).split('\n') if line.startswith('.')}
    ours, empty = load_times(build)
    return ['The stripped library has %.0f KiB: %.0f KiB of code, %.0f KiB of read-only tables, %d bytes of '
            'writable storage.' % (size / 1024, sections['.text'] / 1024, sections['.rodata'] / 1024,
                                   sections.get('.data', 0) + sections.get('.bss', 0)),
            'From `dlopen` to behind the first call it takes %.0f us, a library with nothing in it %.0f us (the '
            'C++ runtime is loaded in both).' % (ours, empty), '',
            *table(('operation', 'blocks', 'bytes', 'of which the caller keeps'),
                   [(row['operation'], '%d' % row['blocks'], '%d' % row['bytes'], row['keeps']) for row in heap])]


STYLE = '''<style>
text { font: 13px sans-serif; fill: #1f2328 } .small { font-size: 11px; fill: #59636e }
.dot { fill: #0969da; fill-opacity: .45 } .mean { stroke: #bc4c00; stroke-width: 3 }
.grid { stroke: #d1d9e0 } .even { stroke: #59636e; stroke-dasharray: 4 3 }
@media (prefers-color-scheme: dark) {
text { fill: #f0f6fc } .small { fill: #9198a1 } .dot { fill: #4493f8 } .mean { stroke: #f0883e }
.grid { stroke: #3d444d } .even { stroke: #9198a1 } }
</style>'''


def chart(rows):
    """Each row a dot at its ratio, each family a line of them with its geometric mean."""
    families = sorted({row.family for row in rows})
    left, width, step, top = 110, 620, 32, 50
    low, high = math.log2(0.25), math.log2(64)

    def across(ratio):
        return left + width * (min(max(math.log2(ratio), low), high) - low) / (high - low)

    bottom = top + step * len(families)
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d" role="img">' %
             (left + width + 60, bottom + 40), STYLE,
             '<title>Time of the best peer over the time of Zeph, by family</title>',
             '<text x="%d" y="20">Time of the best peer / time of Zeph: each dot a row, the bar the geometric mean'
             '</text>' % 10]
    for exponent in range(-2, 7):
        x = across(2 ** exponent)
        name = {-2: 'to 1/4', 6: '64 and more'}.get(exponent, '%g' % 2 ** exponent)
        parts.append('<line class="%s" x1="%.1f" x2="%.1f" y1="%d" y2="%d"/>' %
                     ('even' if exponent == 0 else 'grid', x, x, top - 8, bottom))
        parts.append('<text class="small" x="%.1f" y="%d" text-anchor="middle">%s</text>' % (x, bottom + 16, name))
    parts.append('<text class="small" x="%.1f" y="%d" text-anchor="end">slower</text>' %
                 (across(1) - 8, bottom + 32))
    parts.append('<text class="small" x="%.1f" y="%d">faster</text>' % (across(1) + 8, bottom + 32))
    for i, family in enumerate(families):
        y = top + step * i + step / 2
        ratios = [row.best()[0] for row in rows if row.family == family]
        mean = geometric_mean(ratios)
        parts.append('<text x="%d" y="%.1f" text-anchor="end">%s</text>' % (left - 12, y + 4, family))
        # Neighbours stand in three lanes, so that a crowd can be counted.
        parts += ['<circle class="dot" cx="%.1f" cy="%.1f" r="3"/>' % (across(ratio), y + 7 * (i % 3 - 1))
                  for i, ratio in enumerate(sorted(ratios))]
        parts.append('<line class="mean" x1="%.1f" x2="%.1f" y1="%.1f" y2="%.1f"/>' %
                     (across(mean), across(mean), y - 12, y + 12))
        parts.append('<text x="%d" y="%.1f">%.2f</text>' % (left + width + 12, y + 4, mean))
    return '\n'.join(parts + ['</svg>', ''])


def main():
    build, page, picture, *runs, threads, heap = sys.argv[1:]
    rows = load_rows(runs)
    points = [row for row in rows if row.growth]
    rows = [row for row in rows if row.best()]
    machine = {(row.operation, row.input): row for row in points if row.family == 'machine'}
    speeds = ', '.join('%s of 1 MiB %.1f GB/s' % (name, row.bytes / row.zeph)
                       for (name, size), row in machine.items() if size == '1 MiB')
    lines = ['# Benchmarks', '',
             '`scripts/bench.sh` installs the peers, measures on the machine at hand and writes this page: %d runs, '
             'each row %d rounds a run. A round times Zeph and the peers of one row one after the other, the rows in '
             'an order of its own; a ratio is the median of the rounds. A time is that of one call in '
             'nanoseconds; the ratio is the time of the best peer over that of Zeph: above 1 Zeph is faster. What '
             'a row gives was compared with what each peer gives before it was timed.' %
             (len(runs), json.load(open(runs[0]))['rounds']), '',
             *machine_lines(), '- This machine: ' + speeds, '',
             '**' + summary([row.best()[0] for row in rows]) + '**', '',
             '![Ratios by family](%s)' % os.path.basename(picture), '',
             'A mean tells of the rows that it is taken of: an operation has one for each input and size that it takes, '
             'so that families with many inputs weigh most. By family and by size of the text:', '',
             *family_summary(rows), '',
             'Rows marked "+ requests": the function has promised to ask the heap for work buffers. Such a row is '
             'held against the peer and the cost of just these requests, measured in the same run. The share of the '
             'limit is the time of the named service of the C library on as many bytes.', '',
             '## Where Zeph is behind, and why', '', *behind_lines(rows), '',
             '## Peers whose answer is another one', '', *differing_lines(rows), '', '## All rows',
             *family_tables(rows), '', '## Growth', '',
             'Nanoseconds a byte. 1 KiB lies in the first cache, 32 MiB in none: what does little more than move bytes '
             'grows as memcpy of this machine does.', '', *growth_table(points), '',
             '## Threads', '', 'Throughput of two threads over that of one, each on texts of its own. The sealed texts share the key and '
             'the cipher state behind it: their calls are the caller\'s to order, and two at once hinder each other.', '',
             *table(('family', 'ratio'), [(row['family'], '%.2f' % row['ratio'])
                                          for row in json.load(open(threads))['threads']]), '',
             '## Footprint', '', *footprint_lines(build, json.load(open(heap))['heap']), '']
    with open(page, 'w') as out:
        out.write('\n'.join(lines))
    with open(picture, 'w') as out:
        out.write(chart(rows))
    print(summary([row.best()[0] for row in rows]))


if __name__ == '__main__':
    main()
