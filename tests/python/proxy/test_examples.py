"""The examples run, and show what they are there to show."""

import glob
import os
import unittest

from proxy_support import run_child

HERE = os.path.dirname(os.path.abspath(__file__))
EXAMPLES = os.path.join(HERE, '..', '..', '..', 'examples')

# Lines of the output of each.
SHOWN = {
    'quickstart.py': [
        '301 entries: 270 local, 30 lag, 1 blackhole; 294 dynamic, 7 static',
        '  02:00:00:00:00:07   200  local           8  static',
        '  SdkError: BCM_E_EXISTS (-8): the entry exists already'],
    'call_functions.py': [
        'port 999: BCM_E_PORT (-18): there is no such port',
        'speed of port 1: 10000',
        '  02:00:00:00:00:03 is on port 3',
        "events: [('02:00:00:00:00:01', 2)]"],
    'structures.py': [
        "bcm_l2_addr_t(mac='00:11:22:33:44:55', vid=100, port=3)",
        '[32, 1] 0xa000001',
        'equal fields: True - the same object: False'],
    'devices.py': [
        'unit 1 runs, start-up shadow gone: True',
        'reads go to the hardware: True',
        'on standby unit 0 is taken for 0xa110'],
    'registers_and_tables.py': [
        'register 0x20000, TX_PAUSE_EN 1',
        'entry 3: words [42], VALUE 42',
        '02:00:00:00:00:02 1 local 0x4000003 dynamic'],
    'phy_mdio.py': [
        '  identifier 0x600d',
        '    write 30.0x8000 = 0x1231',
        'internal PHY: 0xbeef'],
    'shell_and_logs.py': [
        '  10    1  xe1-xe4  xe2',
        'result: CMD_NFND',
        'setting port_init_speed = 10000',
        'TRACE shell u0: echo traced: CMD_OK'],
}


class ExampleTest(unittest.TestCase):

    def test_each_example_is_run(self):
        names = [os.path.basename(path)
                 for path in glob.glob(os.path.join(EXAMPLES, '*.py'))]
        self.assertEqual(sorted(names), sorted(SHOWN))
        for name in names:
            output, errors = run_child(os.path.join(EXAMPLES, name))
            lines = output.split('\n')
            for line in SHOWN[name]:
                self.assertIn(line, lines, name)
            self.assertNotIn('memory leak', output)
            self.assertNotIn('Traceback', errors)


if __name__ == '__main__':
    unittest.main()
