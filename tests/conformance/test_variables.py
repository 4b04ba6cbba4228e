"""All variables behind `cvar`, against the SDK's own data."""

import ctypes
import tempfile

from kinds import KINDS
from support import (MODEL, RECORDER, TALLY, ConformanceTest, Record,
                     address_of, companion, display_name, module, pattern,
                     pointer, storage)
from totals import TOTALS

VARIABLES = [Record(variable) for variable in MODEL.variables]
cvar = module.cvar
SIZES = {'bcm_trans_ptr': 96, 'phy_port_info': 66 * 8, 'phy_rmap': 66 * 8}


def in_variable(variable):
    return "in variable '%s' of type '%s'" % (variable.name, variable.type)


class VariableTest(ConformanceTest):
    def of(self, *kinds):
        found = [variable for variable in VARIABLES if variable.kind in kinds]
        self.assertTrue(found)
        return found

    def refuses_value(self, variable, value, exception, text):
        try:
            setattr(cvar, variable.name, value)
        except Exception as caught:
            if self.same((type(caught), str(caught)), (exception, text),
                         '%s = %r' % (variable.name, value)):
                TALLY.note(text)
        else:
            self.fault('%s = %r passed' % (variable.name, value))

    def refuses_wrong(self, variable, kind, argument=None):
        for value in kind.wrong(argument):
            self.refuses_value(variable, value, TypeError,
                               in_variable(variable))
        for value in kind.beyond(argument):
            self.refuses_value(variable, value, OverflowError,
                               in_variable(variable))

    def test_all_kinds_are_tried(self):
        self.assertEqual(len(VARIABLES), TOTALS['variables'])
        self.assertEqual(
            set(variable.kind for variable in VARIABLES),
            set(['int', 'text', 'struct', 'pointer-array', 'function',
                 'read-only-array', 'read-only-constant']))

    def test_numbers(self):
        kind = KINDS['signed-32']
        for variable in self.of('int'):
            native = RECORDER.variable(ctypes.c_int, variable.name)
            before = native.value
            for value in (-2 ** 31, 2 ** 31 - 1, 5, -1):
                native.value = value
                self.same(getattr(cvar, variable.name), value, variable.name)
            for valid in kind.valid(None, 0):
                setattr(cvar, variable.name, valid.value)
                self.same(native.value, int(valid.value), variable.name)
            native.value = 77
            self.refuses_wrong(variable, kind)
            self.same(native.value, 77, variable.name)
            native.value = before
        self.finish()

    def test_texts(self):
        for variable in self.of('text'):
            native = RECORDER.variable(ctypes.c_void_p, variable.name)
            self.same(getattr(cvar, variable.name), None, variable.name)
            for valid in KINDS['text'].valid(None, 0):
                text = valid.keep or valid.value
                setattr(cvar, variable.name, valid.value)
                expected = text if text is None else text.split('\0')[0]
                self.same(getattr(cvar, variable.name), expected,
                          variable.name)
                if text is not None:
                    self.same(native.value == storage(text), False,
                              variable.name)
            setattr(cvar, variable.name, 'kept')
            held = native.value
            self.refuses_wrong(variable, KINDS['text'])
            self.same(native.value, held, variable.name)
            setattr(cvar, variable.name, None)
            self.same(native.value, None, variable.name)
        self.finish()

    def test_blocks(self):
        for variable in self.of('struct', 'pointer-array'):
            size = SIZES[variable.name]
            native = RECORDER.variable(ctypes.c_char * size, variable.name)
            result = getattr(cvar, variable.name)
            self.is_pointer(result, variable.slot, False, variable.name,
                            ctypes.addressof(native))
            block = pattern(size, 3)
            setattr(cvar, variable.name,
                    pointer(variable.slot, storage(block)))
            self.same(native.raw, block, variable.name)
            self.refuses_wrong(variable, KINDS['pointer'], variable)
            for null in (None, pointer(variable.slot, 0)):
                self.refuses_value(variable, null, ValueError,
                                   'invalid null reference ' +
                                   in_variable(variable))
            self.same(native.raw, block, variable.name)
            setattr(cvar, variable.name, result)  # onto itself
            self.same(native.raw, block, variable.name)
            ctypes.memset(ctypes.addressof(native), 0, size)
        self.finish()

    def test_functions(self):
        for variable in self.of('function'):
            native = RECORDER.variable(ctypes.c_void_p, variable.name)
            self.same(getattr(cvar, variable.name), None, variable.name)
            for valid in KINDS['function-pointer'].valid(variable, 0):
                setattr(cvar, variable.name, valid.value)
                self.same(native.value or 0, valid.arrives, variable.name)
            native.value = 0x1230
            self.is_pointer(getattr(cvar, variable.name), variable.slot,
                            False, variable.name, 0x1230)
            self.refuses_wrong(variable, KINDS['function-pointer'], variable)
            self.same(native.value, 0x1230, variable.name)
            # A built-in function that stands for a native one.
            setattr(cvar, variable.name, companion.callback)
            self.same(companion.call(native.value, 4), 5, variable.name)
            setattr(cvar, variable.name, None)
        self.finish()

    def test_read_only_variables(self):
        for variable in self.of('read-only-array'):
            native = RECORDER.variable(ctypes.c_char, variable.name)
            result = getattr(cvar, variable.name)
            self.is_pointer(result, variable.slot, False, variable.name,
                            ctypes.addressof(native))
            text = ("in variable 'read-only %s' of type '%s'"
                    % (variable.name, variable.type))
            for value in (0, None, result):
                self.refuses_value(variable, value, AttributeError, text)
        self.same(cvar.MemNoName, -1, 'MemNoName')
        constant, = self.of('read-only-constant')
        for value in (0, -1, None):
            self.refuses_value(constant, value, AttributeError,
                               'Variable MemNoName is read-only.')
        self.finish()


class LinkTest(ConformanceTest):
    def test_names_in_reverse_order_of_linking(self):
        links = [name[len('@link '):] for name, value in MODEL.install
                 if value is None and name.startswith('@link ')]
        self.assertEqual([variable.name for variable in VARIABLES], links)
        self.assertEqual(str(cvar), '(%s)' % ', '.join(reversed(links)))
        self.assertTrue(str(cvar).startswith(
            '(soc_regtype_gran, soc_regtypenames, '))
        self.assertTrue(str(cvar).endswith(
            'bcm_l2_flags_count, bcm_l2_flags_str)'))

    def test_other_forms(self):
        self.assertEqual(dir(cvar), sorted(v.name for v in VARIABLES))
        self.assertEqual(repr(cvar), '<Swig global variables>')
        self.assertEqual(type(cvar).__name__, 'swigvarlink')
        with tempfile.TemporaryFile() as output:
            print >> output, cvar,
            output.seek(0)
            self.assertEqual(output.read(), 'Swig global variables %s\n'
                             % str(cvar))

    def test_unknown_names(self):
        text = "^Unknown C global variable 'no_such_name'$"
        with self.assertRaisesRegexp(AttributeError, text):
            cvar.no_such_name
        with self.assertRaisesRegexp(AttributeError, text):
            cvar.no_such_name = 1
        with self.assertRaisesRegexp(AttributeError, text):
            del cvar.no_such_name

    def test_no_variable_is_deleted(self):
        for variable in VARIABLES:
            exception = (AttributeError if variable.kind.startswith('read-')
                         else TypeError)
            with self.assertRaises(exception):
                delattr(cvar, variable.name)
            getattr(cvar, variable.name)
