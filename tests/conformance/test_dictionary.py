"""What import puts into the module: rows with their docstrings, constants,
`cvar`, and nothing else."""

import os
import re
import types

from support import (BY_NAME, MODEL, ROOT, ROWS, TALLY, ConformanceTest,
                     module)
from totals import TOTALS

BY_THE_INTERPRETER = set(['__name__', '__doc__', '__file__', '__package__'])


def catalogue():
    """The constants as the catalogue lists them, with the marks between."""
    path = os.path.join(ROOT, 'catalogue', 'constants.txt')
    with open(path) as lines:
        for line in lines:
            line = line.rstrip('\n')
            if line and not line.startswith('#'):
                yield line


class RowsTest(ConformanceTest):
    def test_every_row_is_there_with_its_docstring(self):
        for row in ROWS:
            function = module.__dict__.get(row.name)
            if type(function) is not types.BuiltinFunctionType:
                self.fault('%s is %r' % (row.name, function))
                continue
            self.same(function.__doc__, row.doc or None, row.name)
            self.same(function.__name__, row.name, row.name)
        self.finish()

    def test_docstrings_name_as_many_parameters_as_the_row_takes(self):
        for row in ROWS:
            if row.role == 'registration' or row.name == 'findChipMemory':
                continue
            parameters = re.match(r'(\w+)\((.*)\)( -> .+)?$', row.doc)
            names = [name for name in parameters.group(2).split(', ') if name]
            self.same(parameters.group(1), row.name, row.name)
            self.same(len(names), len(row.arguments), row.doc)
        self.finish()

    def test_docstrings_with_and_without_results(self):
        docs = [row.doc for row in ROWS if row.doc]
        self.assertEqual(len([doc for doc in docs if '->' in doc]),
                         TOTALS['docstrings with a result'])
        self.assertEqual(len([doc for doc in docs if '->' not in doc]),
                         TOTALS['docstrings without'])

    def test_the_row_of_two_shapes_has_two_lines(self):
        self.assertEqual(
            module.findChipMemory.__doc__,
            '\nfindChipMemory(unit, mem, sca, sizeBytes) -> '
            'Hardware::ChipMemory::Ptr\n'
            'findChipMemory(unit, mem, baseAddr) -> '
            'Hardware::ChipMemory::Ptr\n')

    def test_the_row_of_the_runtime_returns_null(self):
        self.assertIsNone(module.SWIG_PyInstanceMethod_New.__doc__)
        with self.assertRaises(SystemError):
            module.SWIG_PyInstanceMethod_New(0)
        TALLY.rows.add('SWIG_PyInstanceMethod_New')


class ConstantsTest(ConformanceTest):
    def test_every_constant_is_the_int_of_the_catalogue(self):
        count = 0
        for line in catalogue():
            if not line.startswith('@'):
                name, value = line.split('\t')
                self.same(module.__dict__.get(name), int(value), name)
                count += 1
        self.finish()
        self.assertEqual(count, TOTALS['constants'])

    def test_constants_and_links_are_set_in_order(self):
        steps = []
        for name, value in MODEL.install:
            steps.append(name if value is None else '%s\t%d' % (name, value))
        self.assertEqual(steps, list(catalogue()))


class DictionaryTest(ConformanceTest):
    def test_nothing_else_is_there(self):
        constants = [name for name, value in MODEL.install
                     if value is not None]
        expected = (set(BY_NAME) | set(constants) | BY_THE_INTERPRETER |
                    set(['cvar', 'SWIG_PyInstanceMethod_New']))
        self.assertEqual(sorted(set(module.__dict__) ^ expected), [])
        self.assertEqual(len(constants), len(set(constants)))

    def test_the_module_has_no_docstring(self):
        self.assertIsNone(module.__doc__)
        self.assertEqual(module.__name__, '_OmbraSdkV2Helper')
