"""Every plain function of the module can be called from Python."""

import os
import unittest

from proxy_support import run_child
from totals import TOTALS

HERE = os.path.dirname(os.path.abspath(__file__))


class EveryFunctionTest(unittest.TestCase):

    def test_each_is_called_once_with_arguments_that_are_something(self):
        output, _ = run_child(os.path.join(HERE, 'every_function.py'),
                              os.path.join(os.environ['OMBRA_BUILD'], 'made',
                                           'model.json'))
        report = output[output.rindex('\nreport:\n'):].split('\n')[2:-1]
        self.assertEqual(report, ['called %d functions'
                                  % TOTALS['plain functions']])


if __name__ == '__main__':
    unittest.main()
