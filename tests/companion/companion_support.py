"""What the tests of the companion modules share."""

import re
import subprocess
import sys
import unittest

import _swig_companion as companion

BASE = '_p_Companion_Base'
DERIVED = '_p_Companion_Derived'
UNNAMED = '_p_Companion_Unnamed'
L2_ADDR = '_p_bcm_l2_addr_s'
FUNCTION = '_p_f_int_p_int__int'
INT = '_p_int'
INTP = '_p_intp'

FAILED = (companion.STATUS_GENERIC, None)


def found(address):
    """What a conversion to an address answers."""
    return (companion.STATUS_OK, address)


def run_child(code):
    """Runs code in a fresh interpreter of this kind; returns its standard
    output. Fails if the child did."""
    child = subprocess.Popen([sys.executable, '-c', code],
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    output, errors = child.communicate()
    if child.returncode != 0:
        raise AssertionError('child ended with %d: %s'
                             % (child.returncode, errors))
    return re.sub(r'\[\d+ refs\]\n', '', output)


class CompanionTest(unittest.TestCase):
    """Starts and ends without registered classes and without records of
    destroyed pointers."""

    def setUp(self):
        companion.forget_classes()
        companion.destroyed()
        self.addCleanup(companion.destroyed)
        self.addCleanup(companion.forget_classes)

    def assert_raises_text(self, exception, text, function, *args):
        with self.assertRaises(exception) as caught:
            function(*args)
        self.assertEqual(str(caught.exception), text)
