#!/usr/bin/env python3
"""check_binary.py LIBRARY...

Reads off built libraries, ELF or DLL, what protects them, and what they need beside them: nothing is
taken from the flags they were built with. Ends with 1 if something is missing.
"""
import re
import subprocess
import sys

# What a DLL may load: the system, and the compiler's runtime that its host loads too.
DLL_NEEDS = {'KERNEL32.dll', 'msvcrt.dll', 'libstdc++-6.dll', 'libgcc_s_seh-1.dll', 'libgcc_s_dw2-1.dll',
             'libwinpthread-1.dll'}
X86 = ('Advanced Micro Devices X86-64', 'Intel 80386')


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def elf_findings(path):
    header = output('readelf', '-hW', path)
    segments = output('readelf', '-lW', path)
    dynamic = output('readelf', '-dW', path)
    symbols = output('readelf', '--dyn-syms', '-W', path)
    notes = output('readelf', '-nW', path)
    stack = re.search(r'GNU_STACK(\s+0x\w+){5}\s+([RWE ]+?)\s+0x', segments)
    yield 'position-independent', 'DYN' in header
    yield 'relocations read-only after load', 'GNU_RELRO' in segments
    yield 'bound at load', bool(re.search(r'BIND_NOW|FLAGS_1.*\bNOW\b', dynamic))
    yield 'no executable stack', bool(stack) and 'E' not in stack.group(2)
    yield 'no text relocations', 'TEXTREL' not in dynamic
    yield 'may be loaded at run time', 'NOOPEN' not in dynamic
    yield 'no path to look for libraries in', not re.search(r'RPATH|RUNPATH', dynamic)
    yield 'stack protector', '__stack_chk_fail' in symbols
    yield 'fortified services', bool(re.search(r'__\w+_chk\b(?<!__stack_chk)', symbols.replace('__stack_chk_fail', '')))
    if any(machine in header for machine in X86):
        yield 'indirect branches land on marks', 'IBT' in notes
        yield 'shadow stack', 'SHSTK' in notes


def dll_findings(path):
    headers = output('objdump', '-p', path)
    needs = set(re.findall(r'DLL Name: (\S+)', headers))
    print('    needs ' + ', '.join(sorted(needs)))
    yield 'needs the system and the C++ runtime alone', needs <= DLL_NEEDS
    yield 'loaded anywhere (ASLR)', 'DYNAMIC_BASE' in headers
    yield 'no execution of data (NX)', 'NX_COMPAT' in headers
    if 'pei-x86-64' in headers:
        yield 'loaded anywhere in 64 bits', 'HIGH_ENTROPY_VA' in headers


def main():
    if len(sys.argv) < 2:
        raise SystemExit(__doc__)
    missing = 0
    for path in sys.argv[1:]:
        print(path)
        findings = dll_findings if open(path, 'rb').read(2) == b'MZ' else elf_findings
        for what, found in findings(path):
            print('    %s: %s' % (what, 'yes' if found else 'MISSING'))
            missing += not found
    raise SystemExit(1 if missing else 0)


if __name__ == '__main__':
    main()
