"""Every argument place of every row: its count, what it refuses, and how what
it takes arrives."""

from kinds import kind_of, valid_objects, values
from support import (FUNCTIONS, ODD_PLACES, PLAIN, RECORDER, ROWS, TALLY,
                     ConformanceTest, disown, module)

# Stands behind the argument under test: it is refused wherever it is looked
# at, with another text, so that a row which reads on is seen.
POISON = Ellipsis


class ArityTest(ConformanceTest):
    def unpack_text(self, row, given):
        name = ('swigregister' if row.role == 'registration' else row.name)
        count = 1 if row.role == 'registration' else len(row.arguments)
        return '%s expected %d arguments, got %d' % (name, count, given)

    def test_every_count_but_the_right_one_is_refused(self):
        for row in ROWS:
            if row.name == 'findChipMemory':
                continue
            right = 1 if row.role == 'registration' else len(row.arguments)
            for given in set([0, right - 1, right + 1, 12]) - set([right, -1]):
                self.refuses(row, [POISON] * given, TypeError,
                             self.unpack_text(row, given))
            TALLY.rows.add(row.name)
        self.finish()

    def test_no_row_takes_keywords(self):
        with self.assertRaises(TypeError):
            module.soc_init(unit=0)


class RefusalTest(ConformanceTest):
    """The places of functions; fields and helpers have their own tests."""

    def test_every_place_refuses_what_it_must(self):
        for row in FUNCTIONS:
            valids = valid_objects(row)
            for place, argument in enumerate(row.arguments):
                TALLY.places.add((row.name, place))
                if (row.name, place) in ODD_PLACES:
                    continue
                before = values(valids[:place])
                behind = [POISON] * (len(valids) - place - 1)
                for refused in kind_of(argument).refused(row, place):
                    self.refuses(row, before + [refused.value] + behind,
                                 refused.exception, refused.text)
        self.finish()


class ArrivalTest(ConformanceTest):
    def call(self, row, valids):
        """Calls the row and compares all that arrived."""
        calls = RECORDER.last.calls
        try:
            disown(row.call(*values(valids)))
        except Exception as caught:
            self.fault('%s%r: raised %r' % (row.name, values(valids), caught))
            return
        last = RECORDER.last
        hidden = 1 if row.appended else 0
        if (last.calls, last.name, last.count) != (calls + 1, row.native,
                                                   len(valids) + hidden):
            self.fault('%s: %d calls of %s with %d arguments'
                       % (row.name, last.calls - calls, last.name, last.count))
            return
        for place, valid in enumerate(valids):
            argument = row.arguments[place]
            wrong = kind_of(argument).arrived(place, argument, valid)
            if wrong:
                self.fault('%s, argument %d, %r: %s'
                           % (row.name, place + 1, valid.value, wrong))

    def test_every_value_arrives_in_its_place(self):
        for row in PLAIN:
            usual = valid_objects(row)
            self.call(row, usual)
            for place, argument in enumerate(row.arguments):
                others = kind_of(argument).valid(argument, place)[1:]
                for valid in others:
                    self.call(row, usual[:place] + [valid] +
                              usual[place + 1:])
        self.finish()
