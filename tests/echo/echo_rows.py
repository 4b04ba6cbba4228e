"""Arguments for every row of the echo module, from the model that the
generator exports: what passes, and what is refused at each place."""

import _echo
from echo_support import Block, bare, free, model

# Behind every pointer lie as many bytes as the largest type wants.
BLOCK = Block('\0' * 512)

# A text field declared `char const *` is nobody's to free, so each store of a
# text leaves the old one behind. That is the rule, not a leak.
KEEPS_BY_RULE = frozenset(['echo_all_t_label_set'])
MUST_FAIL = frozenset(['echo_keeps_reference', 'echo_loses_reference',
                       'echo_keeps_memory'])

# What the kinds of numbers begin with.
NUMBERS = ('signed', 'unsigned', 'address')


class Refused(object):
    """A call that raises; or, of a setter without a `self`, may do nothing."""

    def __init__(self, path, arguments, raises=True):
        self.path = path
        self.arguments = arguments
        self.raises = raises


class Row(object):
    def __init__(self, record):
        self.name = record['name']
        self.role = record['role']
        self.arguments = record['arguments']
        self.field = record.get('field')
        self.call = getattr(_echo, self.name)
        self.makes = self.name.startswith('new_')
        self.deletes = self.name.startswith('delete_')

    def valid(self, argument):
        """A fresh object that passes, so that its count is its own."""
        kind = argument['kind']
        if argument['name'] in ('index', 'nelements'):
            return 1
        if kind.split('-')[0] in NUMBERS:
            return int('77')
        if kind == 'strict-bool':
            return True
        if kind == 'text':
            return ''.join(['a ', 'text'])
        if kind == 'mac-string':
            return ''.join(['01:02:03:', '04:05:06'])
        if kind == 'port-bitmap':
            return [1, 33, 570]
        if kind == 'object':
            return object()
        return BLOCK.pointer(argument['slot'] or '_p_void')

    def usual(self):
        return [self.valid(argument) for argument in self.arguments]

    def refused(self):
        """Each place refused in each way, the others as usual."""
        for place, argument in enumerate(self.arguments):
            kind = argument['kind']
            ways = []
            if kind != 'object':
                ways.append(('refused', object()))
            if kind.split('-')[0] in NUMBERS:
                ways.append(('out of range', 2 ** 70))
            if kind == 'port-bitmap':
                ways += [('with a long', [1, 2L]), ('beyond', [1, 576])]
            if kind == 'mac-string':
                ways += [('without form', 'text'), ('no ASCII', u'\xe4')]
            if argument['null_text']:
                ways.append(('null', None))
            for way, thing in ways:
                arguments = self.usual()
                arguments[place] = thing
                raises = (self.role, place, way) != ('setter', 0, 'null')
                yield Refused('argument %d %s' % (place + 1, way), arguments,
                              raises)
        yield Refused('an argument too many', self.usual() + [object()])

    def run(self, arguments):
        """One call, with what it made released."""
        result = self.call(*arguments)
        if self.makes:
            getattr(_echo, self.name.replace('new_', 'delete_', 1))(result)
        elif hasattr(bare(result), 'own'):
            free(result)

    def success(self):
        """A call without arguments of its own, for the path of success."""
        if not self.deletes:
            arguments = self.usual()
            return (lambda: self.run(arguments)), arguments
        new = getattr(_echo, self.name.replace('delete_', 'new_', 1))
        counts = [1] if self.role == 'array' else []
        return (lambda: self.call(new(*counts))), []


ROWS = [Row(record) for record in model()['rows']
        if record['role'] != 'registration']
HUNTED = [row for row in ROWS if row.name not in MUST_FAIL]


def row_called(name):
    found, = [row for row in ROWS if row.name == name]
    return found
