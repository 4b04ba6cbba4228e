"""Every session at a Python prompt, in documents and docstrings, runs as it
is written."""

import doctest
import glob
import os
import sys
import unittest

from proxy_support import run_child

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..',
                    '..')


class SessionTest(unittest.TestCase):

    def test_each_runs(self):
        paths = glob.glob(os.path.join(ROOT, '*.md'))
        for folder in ('docs', 'examples', 'python'):
            paths += glob.glob(os.path.join(ROOT, folder, '*.md'))
            paths += glob.glob(os.path.join(ROOT, folder, '*.py'))
        lines = {}
        for path in paths:
            with open(path) as document:
                text = document.read()
            if '>>> ' in text:
                output, _ = run_child(os.path.abspath(__file__), path)
                failed, tried = map(int, output.split('\n')[-2].split())
                self.assertEqual(failed, 0, output)
                # A prompt that the parser does not know would go unseen.
                self.assertEqual(tried, text.count('>>> '), path)
                lines[os.path.basename(path)] = tried
        self.assertGreater(lines['README.md'], 10)
        self.assertGreater(lines['OmbraSdkV2Helper.py'], 3)


def run(path):
    if path.endswith('.py'):
        module = __import__(os.path.basename(path)[:-3])
        return doctest.testmod(module)
    return doctest.testfile(path, module_relative=False)


if __name__ == '__main__':
    print '%d %d' % tuple(run(sys.argv[1]))
