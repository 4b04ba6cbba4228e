"""The type table, seen through pointer objects and the companion module."""

import os
import subprocess
import sys

from support import (CLASSES, TYPES, ConformanceTest, address_of, companion,
                     display_name, pointer)
from totals import TOTALS

REGISTER_ALL = r'''
import _OmbraSdkV2Helper as module, _swig_companion as companion, sys
for line in sys.stdin:
    name, slot = line.split()
    proxy = type(name, (object,), {})
    register = getattr(module, name + '_swigregister')
    assert register(proxy) is None, name
    found = companion.present(slot, 0x1230)
    assert type(found) is proxy, (name, found)
    assert long(found.this) == 0x1230 and not found.this.own(), name
    assert companion.registered(slot)[0] is proxy, name
print 'registered'
'''


def run_python(code, text=''):
    """Runs code in an interpreter of its own; its status and outputs."""
    child = subprocess.Popen([sys.executable, '-c', code], env=os.environ,
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE)
    output, errors = child.communicate(text)
    return child.returncode, output, errors


class TypeTableTest(ConformanceTest):
    def test_names(self):
        names = [name for name in TYPES]
        self.assertEqual(len(names), TOTALS['types'])
        for name in names:
            made = pointer(name, 0x1230)
            self.same(repr(made), "<Swig Object of type '%s' at %#x>"
                      % (display_name(name), id(made)), name)
            self.same(address_of(made), 0x1230, name)
        self.finish()

    def test_only_the_type_itself_and_its_twin_pass(self):
        for name, record in TYPES.items():
            sources = [name] + ([record.twin] if record.twin else [])
            # The companion has casts of its own into a type that it shares.
            found = [source for source in companion.cast_order(name)
                     if not source.startswith('_p_Companion_')]
            self.same(sorted(found), sorted(sources), name)
        self.finish()

    def test_twins_by_rule(self):
        for name, record in TYPES.items():
            twin = ''
            for end, box in (('unsigned_int', 'uintp'), ('int', 'intp'),
                             ('unsigned_short', 'uint16p')):
                if name.endswith(end):
                    twin = name[:-len(end)] + box
                    break
            self.same(record.twin, twin, name)
            if twin:
                self.same(twin in TYPES, True, twin)
        self.finish()

    def test_a_twin_passes_at_its_own_address(self):
        for name, record in TYPES.items():
            if record.twin:
                self.same(companion.convert(pointer(record.twin, 0x1230),
                                            name), (0, 0x1230), name)
                self.same(companion.convert(pointer(name, 0x1230),
                                            record.twin)[0], -1, name)
        self.finish()


class RegistrationTest(ConformanceTest):
    def test_every_class_gets_its_proxies(self):
        """In an interpreter of its own, since a registration stays."""
        rows = ['%s %s' % (record.name, record.slot) for record in CLASSES]
        rows += ['%s _p_%s' % (name, name)
                 for name in ('intp', 'uint16p', 'uint32p', 'uintp', 'uint64p',
                              'appl_dcmn_init_param_tp')]
        self.assertEqual(len(rows), TOTALS['registrations'])
        status, output, errors = run_python(REGISTER_ALL, '\n'.join(rows))
        self.assertEqual((status, output.split('\n')[0]), (0, 'registered'),
                         errors)
