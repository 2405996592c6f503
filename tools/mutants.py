#!/usr/bin/env python3
"""mutants.py [--sample N] [--seed S] [--jobs J] [PATTERN...]

How many small mistakes in src/ do the tests notice? Makes one wrong change at a time in a copy of the
tree under build/mutants, builds, and runs the tests; the tree itself is not touched. A change counts
if it compiles and the library's bytes differ. N changes are spread over the files that match
a PATTERN (all but generated tables without one), the same ones for the same seed. A golden row that
differs is a failed test.

A surviving change that cannot matter stands in tests/survivors.txt, one a line:

    FILE | the source line, without its indentation | old -> new | why nothing can notice it
"""
import argparse
import concurrent.futures
import fnmatch
import hashlib
import os
import queue
import random
import re
import shutil
import subprocess

HIDDEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#(?:\\\n|[^\n])*',
                    re.S | re.M)
SWAPS = {
    '<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '==', '&&': '||', '||': '&&',
    '+': '-', '-': '+', '*': '/', '/': '*', '%': '/', '&': '|', '|': '&', '^': '|', '<<': '>>',
    '>>': '<<', '+=': '-=', '-=': '+=', '|=': '&=', '&=': '|=', '^=': '|=',
}
OPERATOR = re.compile(r'(?<= )(?:%s)(?=[ \n])' % '|'.join(map(re.escape, sorted(SWAPS, key=len)[::-1])))
STEP = re.compile(r'\+\+|--')
NUMBER = re.compile(r'(?<![\w.\'])(?:0[xX][\dA-Fa-f]+|\d+)(?=[uUlLzZ]*(?![\w.\']))')
WORD = re.compile(r'\b(?:true|false|break|continue)\b')
WORDS = {'true': 'false', 'false': 'true', 'break': 'continue', 'continue': 'break'}
CONDITION = re.compile(r'\b(if|while) \((?!const|int|char|auto|std|unsigned)(?=.*\) |.*\)$)', re.M)
STATEMENT = re.compile(r'^[ \t]+(?!return|using|throw|break|continue|delete|static|const)'
                       r'[\w:.>\[\]*-]+(?:\(| [-+*/%&|^]?=[ ]|\+\+|--)[^\n{}]*;$', re.M)
QUICK = '--gtest_fail_fast'
TESTS = [('../tools/zeph_golden', '../../../tests/golden.txt'), ('zeph_core_tests', QUICK), ('zeph_tests', QUICK),
         ('zeph_host_tests', QUICK)]
LIKELY = {  # the sweeps that know most of a folder; they run first
    'cipher': 'records', 'codepage': 'codepages', 'compare': 'search', 'fields': 'fields',
    'frame': 'composition', 'number': 'numbers', 'rewrite': 'rewriting', 'search': 'search',
}


def blanked(text):
    """The text with comments, literals and directives as blanks, every place where it was."""
    return HIDDEN.sub(lambda m: re.sub(r'[^\n]', ' ', m.group()), text)


def closing(text, at):
    depth = 0
    for i in range(at, len(text)):
        depth += (text[i] == '(') - (text[i] == ')')
        if depth == 0:
            return i
    return at


def changes(text):
    """(start, end, replacement) of each change."""
    code = blanked(text)
    for match in OPERATOR.finditer(code):
        yield match.start(), match.end(), SWAPS[match.group()]
    for match in STEP.finditer(code):
        yield match.start(), match.end(), '--' if match.group() == '++' else '++'
    for match in NUMBER.finditer(code):
        value = int(match.group(), 0) if match.group() != '0' else 0
        for other in {value + 1, max(value - 1, 0)} - {value}:
            yield match.start(), match.end(), str(other)
    for match in WORD.finditer(code):
        yield match.start(), match.end(), WORDS[match.group()]
    for match in CONDITION.finditer(code):
        end = closing(code, match.end() - 1)
        yield match.end(), end, '!(%s)' % text[match.end():end]
    for match in STATEMENT.finditer(code):
        start = match.end() - len(match.group().lstrip())
        yield start, match.end(), ';'


def chosen(files, count, seed):
    """So many changes, each file's share by its number of changes, at least two."""
    picks, everything = [], {file: list(changes(open(file).read())) for file in files}
    total = sum(map(len, everything.values()))
    draw = random.Random(seed)
    for file, found in sorted(everything.items()):
        share = min(len(found), max(2, round(count * len(found) / total)))
        picks += [(file, *change) for change in draw.sample(found, share)]
    draw.shuffle(picks)
    return picks[:count]


class Copy:
    """A copy of the tree with a build of its own."""

    def __init__(self, number):
        self.root = os.path.abspath('build/mutants/%d' % number)
        self.build = self.root + '/build/release'
        shutil.rmtree(self.root, ignore_errors=True)
        for file in subprocess.check_output(['git', 'ls-files'], text=True).split('\n')[:-1]:
            os.makedirs(os.path.dirname(self.root + '/' + file), exist_ok=True)
            shutil.copy2(file, self.root + '/' + file)
        self.run('cmake', '--preset', 'release', '-DZEPH_BUILD_BENCH=OFF', '-DZEPH_BUILD_EXAMPLES=OFF')
        if not self.built() or not self.passes(TESTS, limit=200):
            raise SystemExit('the tests fail without a change: see ' + self.root)
        self.plain = self.library()

    def run(self, *command, limit=600, where=None):
        try:
            return subprocess.run(command, cwd=where or self.root, timeout=limit,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def built(self, target='all'):
        return self.run('cmake', '--build', self.build, '-j', '1', '--target', target)

    def library(self):
        return hashlib.sha256(open(self.build + '/src/libzeph.so', 'rb').read()).hexdigest()

    def passes(self, tests, limit=40):
        return all(self.run('./' + test[0], *test[1:], limit=limit, where=self.build + '/tests')
                   for test in tests)

    def verdict(self, file, start, end, new):
        path = self.root + '/' + file
        text = open(path).read()
        with open(path, 'w') as changed:
            changed.write(text[:start] + new + text[end:])
        try:
            if not self.built('zeph') or self.library() == self.plain:
                return 'not counted'
            likely = 'Families/Sweep.*/' + LIKELY.get(file.split('/')[1], 'fields')
            first = [('zeph_tests', QUICK, '--gtest_filter=' + likely), TESTS[0]]
            survives = self.passes(first) and self.built() and self.passes(TESTS[1:])
            return 'survived' if survives else 'killed'
        finally:
            with open(path, 'w') as back:
                back.write(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument('--sample', type=int, default=400, metavar='N')
    parser.add_argument('--seed', type=int, default=1, metavar='S')
    parser.add_argument('--jobs', type=int, default=1, metavar='J')
    parser.add_argument('patterns', nargs='*', metavar='PATTERN')
    options = parser.parse_args()

    files = subprocess.check_output(['git', 'ls-files', 'src'], text=True).split()
    files = [f for f in files if re.search(r'(?<!_table)\.(cpp|h)$', f) and 'windows' not in f]
    if options.patterns:
        files = [f for f in files if any(fnmatch.fnmatch(f, p) for p in options.patterns)]
    equivalent = {tuple(map(str.strip, row.split(' | ')))[:3]
                  for row in open('tests/survivors.txt') if ' | ' in row}
    copies = queue.Queue()
    for number in range(options.jobs):
        copies.put(Copy(number))

    def judge(change):
        file, start, end, new = change
        copy = copies.get()
        verdict = copy.verdict(*change)
        copies.put(copy)
        text = open(file).read()
        line = text.count('\n', 0, start) + 1
        source = text.split('\n')[line - 1].strip()
        what = ' '.join('{} -> {}'.format(text[start:end], new).split())
        if verdict == 'survived' and (file, source, what) in equivalent:
            verdict = 'equivalent'
        mark = '' if verdict in ('survived', 'equivalent') else '    '
        print('%s%s %s:%d | %s | %s' % (mark, verdict, file, line, source, what), flush=True)
        return verdict

    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        verdicts = list(pool.map(judge, chosen(files, options.sample, options.seed)))
    killed, survived = verdicts.count('killed'), verdicts.count('survived')
    print('%d killed, %d survived, %d equivalent, %d not counted: %.1f %% noticed' %
          (killed, survived, verdicts.count('equivalent'), verdicts.count('not counted'),
           100.0 * killed / max(killed + survived, 1)))


if __name__ == '__main__':
    main()
