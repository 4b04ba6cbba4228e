"""The short part of the soak, which says the same each time."""

import os
import re
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
DEBUG = hasattr(sys, 'gettotalrefcount')
ALIVE = '''
import gc, sys, threading
import _OmbraSdkV2Helper as m
import OmbraSdkV2Helper as sdk
from calls import start
start(m)
'''


def run(arguments, **environment):
    """Ends with status 0, or the test fails. Returns (output, errors)."""
    child = subprocess.Popen([sys.executable] + arguments, cwd=HERE,
                             env=dict(os.environ, **environment),
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    output, errors = child.communicate()
    if child.returncode != 0:
        raise AssertionError('status %d:\n%s%s' % (child.returncode, output,
                                                   errors[-3000:]))
    return output, errors


class SoakTest(unittest.TestCase):
    def test_random_calls(self):
        run(['calls.py', '2000' if DEBUG else '20000', '1'])


class ProcessTest(unittest.TestCase):
    """One process and what can become of it."""

    def test_reload(self):
        run(['-c', ALIVE + '''
size = len(vars(m))
kept = sdk.bcm_l2_addr_t(vid=3)
reload(m)
reload(sdk)
assert len(vars(m)) == size and kept.vid == 3
assert sdk.bcm_l2_addr_t(vid=4).vid == 4
'''])

    def test_import_in_a_thread(self):
        run(['-c', '''
import threading
names = []
def work():
    import OmbraSdkV2Helper as sdk
    names.append(sdk.bcm_l2_addr_t(vid=4).vid)
threads = [threading.Thread(target=work) for _ in range(4)]
for thread in threads: thread.start()
for thread in threads: thread.join()
assert names == [4] * 4
'''])

    def test_fork(self):
        run(['-c', ALIVE + '''
import os
entry = sdk.bcm_l2_addr_t(mac='0:0:0:0:0:1', vid=1, port=1)
seen = []
key = sdk.cookie(lambda *a: seen.append(a))
sdk.bcm_l2_addr_register(0, sdk.bcm_l2_addr_callback_t, key)
child = os.fork()
sdk.check(sdk.bcm_l2_addr_add(0, entry))
assert seen
sdk.delete_bcm_l2_addr_t(entry)
if child:
    assert os.waitpid(child, 0)[1] == 0
'''])

    @unittest.skipUnless(DEBUG, 'the debug build counts')
    def test_what_is_live_at_the_end_is_told(self):
        """A leak is told by name, and nothing where there is none."""
        def told(code):
            errors = run(['-c', ALIVE + code], OMBRA_EXIT_COUNT='1')[1]
            return sorted(re.findall(r'^.* live at exit: .*$', errors, re.M))
        self.assertEqual(told('''
kept = [sdk.bcm_l2_addr_t(), sdk.Array('int', 3), sdk.intp(), sdk.U32(1)]
sdk.release(sdk.cookie(len))
'''), [])
        self.assertEqual(told('''
m.new_bcm_l2_addr_t().disown()
m.new_bcm_l2_addr_t().disown()
m.new_intp().disown()
m.new_uint8Array(4)
m.getHwShadow(0).this.disown()
sdk.U32(1).this.disown()
sdk.cookie(len)
sdk.bind(sdk.bcm_linkscan_handler_t, len)
'''), ['_OmbraSdkV2Companion: 1 live at exit: U32 *',
            '_OmbraSdkV2Companion: 1 live at exit: bcm_linkscan_handler_t',
            '_OmbraSdkV2Companion: 1 live at exit: cookie',
            '_OmbraSdkV2Helper: 1 live at exit: '
            'Hardware::HardwareShadow::Ptr *',
            '_OmbraSdkV2Helper: 1 live at exit: array',
            '_OmbraSdkV2Helper: 1 live at exit: intp *',
            '_OmbraSdkV2Helper: 2 live at exit: bcm_l2_addr_t *'])


if __name__ == '__main__':
    unittest.main()
