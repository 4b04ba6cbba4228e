"""The agents of the examples do their work, and twice the same."""

import glob
import os
import unittest

from proxy_support import run_child

HERE = os.path.dirname(os.path.abspath(__file__))
AGENTS = os.path.join(HERE, '..', '..', '..', 'examples', 'agents')
MODEL = os.path.join(os.environ['OMBRA_BUILD'], 'made', 'model.json')

ENDS = {
    'acl': 'with 16384 rules',
    'counters': 'port 1 has received most',
    'l2': '1366 stations sat on port 7, 55978 stayed of 65536',
    'lag': 'with 256 trunks',
    'mirror': 'with 32 destinations',
    'multicast': 'with 4096 groups',
    'ports': '',
    'qos': 'with 8 maps',
    'routes': 'with 131072 routes',
    'stg': 'with 255 groups',
}


class AgentTest(unittest.TestCase):

    def test_each_does_its_work(self):
        found = [os.path.basename(path)[:-3]
                 for path in glob.glob(os.path.join(AGENTS, '*.py'))]
        self.assertEqual(sorted(found), sorted(list(ENDS) + ['agent']))
        for name, end in ENDS.iteritems():
            output, errors = run_child(os.path.join(AGENTS, name + '.py'))
            last = output.split('\n')[-2]
            self.assertTrue(last.startswith(name + ': done'), last)
            self.assertTrue(last.endswith(end), last)
            self.assertEqual(errors, '')


class SweepTest(unittest.TestCase):
    """What is refused changes nothing, units are apart, and the same calls
    have the same answers."""

    def test_a_sweep_over_all_functions(self):
        program = os.path.join(HERE, 'sweep.py')
        reports = []
        for _ in range(2):
            output, _ = run_child(program, MODEL, '7')
            reports.append(output[output.rindex('\nreport:\n'):].split('\n'))
        self.assertEqual(reports[0], reports[1])
        wrong = [line for line in reports[0] if ': ' in line]
        self.assertEqual(wrong, [])
        self.assertGreater(len(reports[0]), 2000)


if __name__ == '__main__':
    unittest.main()
