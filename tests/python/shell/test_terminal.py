"""Sessions of a person at a terminal, and of a program that asks for JSON."""

import fcntl
import json
import os
import pty
import re
import select
import shutil
import signal
import struct
import sys
import tempfile
import termios
import time
import unittest

import OmbraSdkV2Helper as sdk

# What the child runs: a shell, then Python reads what was typed behind `exit`.
CHILD = '''
import OmbraSdkV2Helper as sdk
sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
sdk.check(sdk.soc_init(0))
print 'result %d' % sdk.sh_process(0, 'sw', 0)
print 'python has %r' % raw_input()
'''
PROMPT = 'sw.0> '


class Person(object):
    """A child with a terminal of its own, and the hands and eyes at it."""

    def __init__(self, home, rows=24, columns=80, **more):
        self.child, self.terminal = pty.fork()
        if self.child == 0:
            os.environ.update(HOME=home, TERM='xterm', **more)
            os.execv(sys.executable, [sys.executable, '-c', CHILD])
        fcntl.ioctl(self.terminal, termios.TIOCSWINSZ,
                    struct.pack('HHHH', rows, columns, 0, 0))
        self.seen = ''

    def until(self, text):
        """What the terminal shows up to the text, without what moves the
        cursor about; it may take a minute on a busy machine."""
        end = time.time() + 60
        while text not in self.seen:
            ready = select.select([self.terminal], [], [], end - time.time())[0]
            if not ready:
                raise AssertionError('%r does not come after %r' % (text, self.seen))
            try:
                more = os.read(self.terminal, 4096)
            except OSError:
                raise AssertionError('the end before %r: %r' % (text, self.seen))
            self.seen = re.sub('\x1b[[][0-9;?]*[A-LN-Za-ln-z]', '', self.seen + more)
        shown, self.seen = self.seen.split(text, 1)
        while text == PROMPT and termios.tcgetattr(self.terminal)[3] & termios.ECHO:
            time.sleep(0.01)  # the editor stands ready a moment after its prompt
        return shown + text

    def keys(self, keys):
        os.write(self.terminal, keys)

    def types(self, line, text=PROMPT):
        """Types a line when the prompt stands, and gives what comes of it."""
        self.keys(line + '\r')
        self.until('\n')
        return self.until(text)

    def leaves(self):
        self.keys('exit\rover\r')
        self.until('result -4')
        self.until("python has 'over'")
        os.waitpid(self.child, 0)
        os.close(self.terminal)


class Terminal(unittest.TestCase):
    def setUp(self):
        self.home = tempfile.mkdtemp()

    def tearDown(self):
        shutil.rmtree(self.home)

    def test_ten_minutes_over_two_sessions(self):
        person = Person(self.home)
        person.until(PROMPT)
        person.keys('vlan cr\t')
        person.until('eate ')
        person.keys('10\x15policer create 4 ckbits_s\t')
        person.until('ec=')
        person.keys('\x15vlan create 10 ?')
        self.assertIn('untagged=', person.until(PROMPT + 'vlan create 10 '))
        person.keys('\x15')
        for line, answer in (('vlna', "did you mean 'vlan'?"),
                             ('vlan shwo', "did you mean 'show'?"),
                             ('vlan 5000', 'vlan 5000: 1 to 4094'),
                             ('port xe1 sped=1', "did you mean 'speed='?"),
                             ('port xe1 loopback=x', 'none, mac, phy or remote'),
                             ('ps xe99', "'xe99' is no port"),
                             ('getreg NOTHING', "no register 'NOTHING'"),
                             ('ps | inclde x', "did you mean 'include'?"),
                             ('rcload none', 'rcload none: no such file'),
                         ('policer create 4 mod=1', "did you mean 'mode='?"),
                         ('field qualify 7 SrcIpp 1', "did you mean 'SrcIp6'?"),
                         ('l3 route add 10.0.0.0/33', 'an address and a length'),
                         ('rollback none', "'checkpoint show' lists them"),
                             ('vl cr 10 po=xe1-xe4', ''),
                             ('vlan 10', 'xe1-xe4'),
                             ('!!', 'xe1-xe4'),
                             ("setenv x '\xc3\xa4?'", ''),
                             ('echo $?$x', '0\xc3\xa4?')):
            self.assertIn(answer, person.types(line), line)
        person.keys('vlan create 99\x03')
        person.until(PROMPT)
        self.assertIn('NOT_FOUND', person.types('vlan show 99'))
        person.keys("loop 100000000 'setenv y 1'\r")
        time.sleep(0.3)
        os.kill(person.child, signal.SIGINT)
        person.until('interrupted')
        person.until(PROMPT)
        person.leaves()
        person = Person(self.home)
        person.until(PROMPT)
        person.keys('\x1b[A\x1b[A\x1b[A')
        person.until('vlan show 99')
        person.keys('\x15')
        person.leaves()
        mode = os.stat(os.path.join(self.home, '.ombra_history')).st_mode
        self.assertEqual(0o600, mode & 0o777)

    def test_pages_by_the_window_with_single_keys(self):
        person = Person(self.home, rows=10, columns=40)
        person.until(PROMPT)
        more = '-- more: space, return, q --'
        page = person.types('ps', more)
        self.assertEqual(9, page.count('\n'))
        self.assertTrue(all(len(line) <= 40 for line in
                            re.sub('\x1b[^m]*m', '', page).split('\r\n')))
        person.keys('\r')
        self.assertEqual(1, person.until(more).count('\n'))
        person.keys(' ')
        self.assertEqual(9, person.until(more).count('\n'))
        person.keys('q')
        person.until(PROMPT)
        self.assertIn('\x1b[1m', person.types('ps xe1'))
        person.leaves()

    def test_no_colours_where_they_are_not_wanted(self):
        for wish in {'NO_COLOR': '1'}, {'TERM_': '1', 'NO_COLOR': 'x'}:
            person = Person(self.home, **wish)
            person.until(PROMPT)
            self.assertNotIn('\x1b[1m', person.types('ps xe1'))
            self.assertNotIn('\x1b[31m', person.types('ps xe99'))
            person.leaves()


class Program(unittest.TestCase):
    def test_json_has_the_fields_of_the_structures(self):
        unit = sdk.check(sdk.addOmbraDevice(0, 9, 0, 0))
        sdk.check(sdk.soc_init(unit))
        sdk.sdc(unit, 'vlan create 10; l2 add mac=2:0:0:0:0:1 vlan=10 port=3 static')
        row, = json.loads(sdk.sdc(unit, 'l2 show | json'))
        status, entry = sdk.bcm_l2_addr_get(unit, '02:00:00:00:00:01', 10)
        self.assertEqual(0, status)
        for field in 'mac', 'vid', 'port', 'modid', 'tgid', 'flags':
            self.assertEqual(getattr(entry, field), row[field], field)
        self.assertNotIn('\x1b', sdk.sdc(unit, 'ps; nonsense; ps xe99'))

    def test_every_field_of_a_structure_is_a_column(self):
        unit = sdk.check(sdk.addOmbraDevice(0, 10, 0, 0))
        sdk.check(sdk.soc_init(unit))
        for made, shown, structure in (
                ('trunk create 3', 'trunk show', sdk.bcm_trunk_info_t),
                ('policer create 4 mode=1', 'policer show', sdk.bcm_policer_config_t),
                ('l3 intf create 1 l3a_vid=1', 'l3 intf show', sdk.bcm_l3_intf_t),
                ('l3 egress create 100000 intf=1', 'l3 egress show', sdk.bcm_l3_egress_t),
                ('l3 host add 10.0.0.1 l3a_intf=1', 'l3 host show', sdk.bcm_l3_host_t),
                ('l3 route add fd00::/16 l3a_intf=1', 'l3 route show', sdk.bcm_l3_route_t)):
            self.assertEqual('', sdk.sdc(unit, made))
            row, = json.loads(sdk.sdc(unit, shown + ' | json'))
            plain = [name for name in dir(structure())
                     if not name.startswith(('_', 'this')) and
                     isinstance(getattr(structure(), name), (int, long, str))]
            self.assertGreater(len(plain), 5)
            self.assertEqual([], [name for name in plain if name not in row], shown)

    def test_a_broken_configuration_is_told_where_it_is_loaded(self):
        with tempfile.NamedTemporaryFile() as broken:
            broken.write('good=1\nno equals sign\n')
            broken.flush()
            told = sdk.sdc(0, 'config load ' + broken.name)
        self.assertIn(broken.name + ":2: no '=' after the name", told)
        self.assertIn('BCM_E_CONFIG', told)


if __name__ == '__main__':
    unittest.main()
