"""Modules of the kind in one process: who shares what, in every order."""

import unittest

from companion_support import FUNCTION, INT, INTP, L2_ADDR, run_child, UNNAMED

MAIN = '_OmbraSdkV2Helper'

# Prints the facts about a process that imported `modules` in this order.
FACTS = '''
import sys
modules = [__import__(name) for name in %r]
companion = sys.modules['_swig_companion']
shared = sys.modules['swig_runtime_data4']
print type(shared.type_pointer_capsule).__name__, shared.__doc__
for name in (%r, %r, %r):
    print name, sorted(companion.cast_order(name))
for module in modules:
    print module.__name__, module.__doc__
'''


def facts(*modules):
    return run_child(FACTS % (modules, INT, L2_ADDR, UNNAMED)).splitlines()


class JoinTestCase(unittest.TestCase):

    def check_facts(self, *modules):
        self.assertEqual(
            facts(*modules),
            ['PyCapsule None',
             "_p_int ['_p_int', '_p_intp']",
             "%s ['%s', '%s']" % (L2_ADDR, UNNAMED, L2_ADDR),
             "%s ['%s']" % (UNNAMED, UNNAMED)]
            + ['%s None' % name for name in modules])


class JoinTest(JoinTestCase):

    def test_class_registered_by_one_serves_the_other(self):
        self.assertEqual(run_child(
            'import _swig_neighbour as neighbour\n'
            'import _swig_companion as companion\n'
            'class Kind(object): pass\n'
            'neighbour.register_class(%r, Kind)\n'
            'print type(companion.present(%r, 8)).__name__\n'
            % (INT, INT)), 'Kind\n')


class MainModuleTest(JoinTestCase):
    """The same with the main module, which shares most types."""

    @classmethod
    def setUpClass(cls):
        try:
            run_child('import ' + MAIN)
        except AssertionError as error:
            raise unittest.SkipTest('cannot import %s: %s' % (MAIN, error))

    def test_main_in_every_order(self):
        names = ('_swig_companion', '_swig_neighbour', MAIN)
        for order in ((0, 2), (2, 0), (2, 1, 0), (0, 2, 1)):
            self.check_facts(*[names[index] for index in order])

    def test_pointers_and_callbacks_cross(self):
        for first, second in (('_swig_companion', MAIN),
                              (MAIN, '_swig_companion')):
            self.assertEqual(run_child(
                'import %s, %s\n'
                'import _swig_companion as companion\n'
                'import %s as main\n'
                'box = main.new_intp()\n'
                'status, address = companion.convert(box, %r)\n'
                'print status, address == int(box)\n'
                'main.intp_assign(companion.make(%r, address), 7)\n'
                'print main.intp_value(box)\n'
                'main.delete_intp(box)\n'
                'main.cvar.soc_phy_cb_xlate_port_func = companion.callback\n'
                'print main.cvar.soc_phy_cb_xlate_port_func == '
                'companion.callback_address\n'
                'main.cvar.soc_phy_cb_xlate_port_func = None\n'
                'print companion.type_check(%r, %r)\n'
                % (first, second, MAIN, INT, INTP, FUNCTION, FUNCTION)),
                '0 True\n7\nTrue\nTrue\n')


if __name__ == '__main__':
    unittest.main()
