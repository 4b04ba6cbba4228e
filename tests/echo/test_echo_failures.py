"""Native exceptions, and allocations that fail: each ends in a Python
exception with nothing kept, and the next call works."""

import unittest

import _echo
from echo_rows import BLOCK, HUNTED
from echo_support import EchoTest, outcome
from leaks import hunt

# By the numbers that throw_next() takes.
THROWN = {1: (RuntimeError, 'the echo failed'),
          2: (RuntimeError, 'native exception'),
          3: (ValueError, "out of the toolkit's range"),
          4: (ValueError, 'UnitId::value < 0 or > 255 not allowed'),
          5: (RuntimeError, 'std::bad_alloc')}


class NativeExceptionTest(EchoTest):
    def test_every_row_gives_every_exception_its_class_and_text(self):
        met = 0
        for row in HUNTED:
            if row.role != 'function':
                continue
            for thrown, expected in sorted(THROWN.items()):
                arguments = row.usual()

                def throwing():
                    _echo.throw_next(thrown)
                    return outcome(row.call, *arguments)
                told = throwing()
                leak = hunt(row.name, 'native exception %d' % thrown, throwing,
                            arguments)
                if leak:
                    self.fault('%s', leak)
                if told != expected:
                    self.fault('%s: %r, not %r', row.name, told, expected)
                row.run(arguments)  # the next call works
                met += 1
        self.assertGreater(met, 150)

    def test_a_refusal_leaves_the_native_function_uncalled(self):
        _echo.throw_next(1)
        self.assertRaises(TypeError, _echo.echo_int, None)
        self.assertEqual(outcome(_echo.echo_int, 1), THROWN[1])
        self.assertEqual(_echo.echo_int(1), 1)


class FailedAllocationTest(EchoTest):
    """The n-th allocation fails, for n = 1, 2, 3 ... until the call
    succeeds."""
    most = 40

    def step(self, name, n, call, watched):
        """False once no allocation failed any more."""
        def failing():
            _echo.fail_allocation(n)
            try:
                return outcome(call)
            finally:
                failing.failed = _echo.allocation_failed()
        content = BLOCK.content()
        exception, told = failing()
        if not failing.failed:
            if exception is not None:
                self.fault('%s: %r: %r without a failure', name, exception,
                           told)
            return False
        if exception is not MemoryError:
            self.fault('%s, allocation %d: %r: %r, not MemoryError', name, n,
                       exception, told)
        if BLOCK.content() != content:
            self.fault('%s, allocation %d: wrote all the same', name, n)
        leak = hunt(name, 'allocation %d failed' % n, failing, watched)
        if leak:
            self.fault('%s', leak)
        return True

    def steps(self, name, call, watched=()):
        n = 1
        while self.step(name, n, call, watched):
            n += 1
            self.assertLess(n, self.most, name)
        return n - 1

    def test_every_row(self):
        steps = 0
        for row in HUNTED:
            if row.deletes:
                continue
            arguments = row.usual()
            failed = self.steps(row.name, lambda: row.run(arguments),
                                arguments)
            if row.makes:
                self.assertGreater(failed, 0, row.name)
            steps += failed
        self.assertGreater(steps, 100)

    def test_texts_of_variables(self):
        def from_pointer():
            _echo.cvar.echo_title = text
        text = 'a text'

        def from_text():
            _echo.cvar.echo_title = text
        block = BLOCK.pointer('_p_char')
        _echo.cvar.echo_title = None
        self.assertEqual(self.steps('echo_title', from_text, [text]), 1)
        text = block
        self.assertEqual(self.steps('echo_title', from_pointer, [block]), 1)

    def test_a_registration(self):
        class Proxy(object):
            __swig_destroy__ = _echo.delete_uint64p
        n = 1
        while True:
            _echo.fail_allocation(n)
            told = outcome(_echo.uint64p_swigregister, Proxy)
            if not _echo.allocation_failed():
                break
            self.assertIs(told[0], MemoryError)
            n += 1
        self.assertEqual((n - 1, told), (2, (None, None)))


if __name__ == '__main__':
    unittest.main()
