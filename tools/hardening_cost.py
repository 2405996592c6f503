#!/usr/bin/env python3
"""hardening_cost.py PROTECTED PLAIN [CORE]

Runs zeph_bench of two build folders in turn, without peers, and prints how many times as long the
calls of the first one take: the geometric mean over all rows of the ratio of their medians.
"""
import json
import math
import statistics
import subprocess
import sys
import tempfile

RUNS = 5


def timed(build, core):
    """The nanoseconds of a call for each row."""
    with tempfile.NamedTemporaryFile('r', suffix='.json') as result:
        subprocess.run(['taskset', '-c', core, build + '/bench/zeph_bench', '--rounds=3', '--only-zeph',
                        '--json=' + result.name], check=True, stdout=subprocess.DEVNULL)
        return {(row['growth'], row['family'], row['operation'], row['input']): row['timings'][0]['ns']
                for row in json.load(result)['rows']}


def main():
    protected, plain = sys.argv[1:3]
    core = sys.argv[3] if len(sys.argv) > 3 else '0'
    ratios = {}
    for _ in range(RUNS):
        first, second = timed(protected, core), timed(plain, core)
        for key, time in first.items():
            ratios.setdefault(key, []).append(time / second[key])
    medians = [statistics.median(found) for found in ratios.values()]
    mean = math.exp(statistics.fmean(math.log(ratio) for ratio in medians))
    print('%d rows, %d runs: with the protections a call takes %.3f times as long' % (len(medians), RUNS, mean))


if __name__ == '__main__':
    main()
