#!/usr/bin/env python3
"""Plants each fault of faults.py in a copy of the tree, builds what it touches, and lets the release
suites meet it. Prints what caught each; fails if one is met by nothing, or its text is gone.

    tests/mutants/run.py BUILD JOBS [NAME...]

The copy lies in BUILD/mutants and is made equal to the tree before and after each fault, so that an
interruption leaves nothing behind."""

import os
import pathlib
import re
import subprocess
import sys
import time

from faults import FAULTS

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIMIT = 900  # seconds for all suites


def make_equal(copy):
    """Makes the copy's sources equal to the tree's, touching only what differs."""
    listed = subprocess.check_output(
        ['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'],
        cwd=ROOT, text=True).split('\0')
    names = {name for name in listed if name and (ROOT / name).is_file()}
    for name in names:
        target, content = copy / name, (ROOT / name).read_bytes()
        if not target.is_file() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
            target.chmod((ROOT / name).stat().st_mode)
    for path in list(copy.rglob('*')):
        name = path.relative_to(copy)
        if path.is_file() and name.parts[0] != 'build' and str(name) not in names:
            path.unlink()


def run(command, copy, limit=None):
    """Exit status, or None when the time is over, and the output."""
    environment = dict(os.environ, CCACHE_BASEDIR=str(copy))
    try:
        done = subprocess.run(command, cwd=copy, env=environment, timeout=limit, text=True,
                              errors='replace', stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    except subprocess.TimeoutExpired:
        return None, ''
    return done.returncode, done.stdout


def suites(copy, jobs, first):
    """What fails first, or None: those that are likely to, then the short ones, then the rest."""
    for choice in (first, ['-E', '^python'], ['-R', '^python']):
        status, output = run(['ctest', '--test-dir', 'build', '--stop-on-failure', '--timeout',
                              '300', '-j', jobs, *choice], copy, LIMIT)
        failed = re.findall(r'Test +#\d+: (\S+) \.*\**(?:Failed|Timeout|Exception|Not Run|Subp)',
                            output)
        if status != 0:
            return failed[0] if failed else 'the time limit'
    return None


def meet(fault, copy, jobs):
    path = copy / fault.file
    source = path.read_text() if path.is_file() else ''
    if source.count(fault.text) != 1:
        return 'TEXT NOT FOUND: choose it anew'
    path.write_text(source.replace(fault.text, fault.replacement))
    if run(['cmake', '--build', 'build', '-j', jobs], copy)[0] != 0:
        return 'the build'
    return suites(copy, jobs, fault.first.split()) or 'NOTHING'


def main():
    build, jobs, chosen = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], set(sys.argv[3:])
    copy = build / 'mutants'
    make_equal(copy)
    cache = (build / 'CMakeCache.txt').read_text()
    options = ['-D' + line for line in re.findall(r'^(?:PYTHON27|OMBRA)\w*:\w+=.+$', cache, re.M)]
    for command in (['cmake', '-S', '.', '-B', 'build', '-G', 'Ninja', *options],
                    ['cmake', '--build', 'build', '-j', jobs]):
        status, output = run(command, copy)
        if status != 0:
            sys.exit(output[-4000:] + '\nthe tree does not build')
    failed = None if chosen else suites(copy, jobs, ['-N'])
    if failed:
        sys.exit('without any fault: ' + failed + ' fails')
    missed = 0
    for fault in FAULTS:
        if chosen and fault.name not in chosen:
            continue
        begin = time.monotonic()
        try:
            catcher = meet(fault, copy, jobs)
        finally:
            make_equal(copy)
        missed += catcher.isupper() or catcher.startswith('TEXT')
        print('%-20s %-55s %s  (%d s)' % (fault.name, catcher, fault.breaks,
                                          time.monotonic() - begin), flush=True)
    sys.exit('%d met by nothing' % missed if missed else 0)


if __name__ == '__main__':
    main()
