"""The module's face to the dynamic loader: what it gives and what it takes."""

import os
import re
import subprocess

from support import FUNCTIONS, MODEL, MODULE_FILE, ConformanceTest

HERE = os.path.dirname(os.path.abspath(__file__))

EXPORTED = ['bcm_field_aset_add', 'bcm_field_aset_init',
            'bcm_field_aset_remove', 'bcm_field_aset_test',
            'bcm_field_qset_add', 'bcm_field_qset_init',
            'bcm_field_qset_remove', 'bcm_field_qset_test',
            'bcm_get_gport_from_sys_port_id', 'bcm_get_sys_port_id_from_gport',
            'get_copyno_any', 'get_copyno_egq', 'get_copyno_ihb',
            'get_copyno_ihp', 'get_copyno_iqm', 'init_OmbraSdkV2Helper',
            'soc_ppd_lag_member_add_wrapper',
            'soc_ppd_lag_member_remove_wrapper']

LIBRARIES = set(['libOmbraSdkV2Helper.so.0', 'liblumo.so.0',
                 'libOmbraSdkV2HelperPythonMdioAccess.so.0'])
# Nothing of it is called, so the linker may leave it out.
USABLE = set(['libTesselApiTypes.so.0'])

# Of the interpreter, of the compiler's run time, and of the sanitizers in a
# tree that has them. Names of the C and C++ libraries bear a version.
FOREIGN = re.compile(r'_?Py|_ITM_|__gmon_start__$|__asan_|__ubsan_|'
                     r'__sanitizer_|.*@')


def tool(*command):
    """The output of a tool, which needs no sanitizers."""
    environment = dict(os.environ)
    environment.pop('LD_PRELOAD', None)
    return subprocess.check_output(command, env=environment)


def nm(*options):
    """(kind, name) of each dynamic symbol."""
    output = tool('nm', '-D', MODULE_FILE, *options)
    for line in output.splitlines():
        kind, name = re.match(r'(?:[0-9a-f]+)? *(\w) (.+)$', line).groups()
        yield kind, name


class ExportsTest(ConformanceTest):
    maxDiff = None

    def test_exactly_the_entry_and_the_helpers_are_exported(self):
        symbols = sorted(nm('--defined-only'))
        self.assertEqual([name for _, name in symbols], EXPORTED)
        self.assertEqual(set(kind for kind, _ in symbols), set('T'))

    def test_imports_are_what_the_rows_and_the_list_name(self):
        with open(os.path.join(HERE, 'imports.txt')) as lines:
            written = set(line.rstrip('\n') for line in lines
                          if not line.startswith('#'))
        mangled = set(name.split('(')[0] for name in written)
        written.update(row.native for row in FUNCTIONS
                       if not row.module_native and row.native not in mangled)
        written.update(variable['name'] for variable in MODEL.variables
                       if variable['kind'] != 'read-only-constant')
        names = set(name for _, name in nm('--undefined-only', '-C'))
        taken = set(name for name in names if not FOREIGN.match(name))
        self.assertEqual(sorted(written - taken), [])
        # The sanitizers stand in for the system's functions, without their
        # versions: what is ours cannot be told there.
        if '__asan_init' not in names:
            self.assertEqual(sorted(taken - written), [])

    def test_libraries_are_named_by_soname(self):
        output = tool('readelf', '-d', MODULE_FILE)
        needed = set(re.findall(r'\(NEEDED\).*\[(.+)\]', output))
        ours = set(name for name in needed
                   if re.search('Ombra|lumo|Tessel', name))
        self.assertEqual(ours - USABLE, LIBRARIES)
        self.assertEqual([name for name in needed if 'python' in name], [])
