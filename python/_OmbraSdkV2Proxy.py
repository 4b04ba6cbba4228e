"""The classes behind OmbraSdkV2Helper: structures, values, boxes, arrays.

Each stands on rows of the module: a structure's fields are descriptors of the
companion over its X_f_get and X_f_set rows, and the pointer object in an instance's `this` is
what the module sees when the instance is passed.

Who frees what: an instance that was constructed here owns its native memory,
and it dies with the instance. One that the SDK handed out does not. What is
read out of a structure or an array without a copy (a nested structure, an
array field, an element) keeps its parent alive for as long as it lives.
"""

from operator import ge, gt, le, lt

import _OmbraSdkV2Companion as companion

_NUMBERS = (int, long)


# The base of all: holds a pointer object in `this`, is equal when the address is
# the same, and refuses a name that its class does not have.
Proxy = companion.Instance


class Struct(Proxy):
    """A structure of the SDK. A new one is zero, but for the fields given."""

    _fields = ()

    def items(self):
        """Pairs of field name and value, in layout order."""
        return [(name, getattr(self, name)) for name in self._fields]

    def equals(self, other):
        """Whether `other` is of the same class and every field is equal."""
        return type(self) is type(other) and all(
            _same(getattr(self, name), getattr(other, name))
            for name in self._fields)

    def copy(self):
        """A new structure with the same fields. Pointers are copied as
        pointers: what they point to is shared."""
        twin = type(self)()
        for name in self._fields:
            setattr(twin, name, getattr(self, name))
        return twin

    def __copy__(self):
        return self.copy()

    def __deepcopy__(self, memo):
        return self.copy()

    def __repr__(self):
        # Fields that are zero are left out: most of a structure is.
        if int(self.this) == 0:
            return '<%s that is gone>' % type(self).__name__
        shown = ['%s=%r' % pair for pair in self.items()
                 if not _is_zero(pair[1])]
        return '%s(%s)' % (type(self).__name__, ', '.join(shown))


class Box(Proxy):
    """One native number that the SDK can write through a pointer."""

    def __init__(self, value=0):
        self.__dict__['this'] = self._new()
        self.value = value

    def cast(self):
        """A plain pointer to the number, for parameters that do not take the
        box itself. It keeps nothing alive: the box must outlive it."""
        return self._cast(self)

    def __copy__(self):
        return type(self)(self.value)

    def __deepcopy__(self, memo):
        return type(self)(self.value)

    def __int__(self):
        return int(self.value)

    def __repr__(self):
        return '%s(%r)' % (type(self).__name__, self.value)


class StructBox(Box):
    """One native structure behind a pointer; `value` is a copy of it."""

    def __init__(self, value=None):
        Box.__init__(self, self._element() if value is None else value)


class Value(Proxy):
    """A value that the SDK knows by name alone: a number, words, a port list
    or a text, in `value`. Two values of a class are equal when these are."""

    def __init__(self, value=None):
        self.__dict__['this'] = companion.new_value(self._type, value)
        # A value that is a pointer needs what it points to.
        self.__dict__['_kept'] = value

    @property
    def value(self):
        """What the value stands for."""
        return companion.get_value(self)

    @value.setter
    def value(self, value):
        companion.set_value(self, value)
        self.__dict__['_kept'] = value

    def __int__(self):
        return int(self.value)

    def __copy__(self):
        return type(self)(self.value)

    def __deepcopy__(self, memo):
        return type(self)(self.value)

    def _compare(self, other, verdict):
        """`verdict` of the two values. Another class of values, or something
        that this one could not be made of, has none."""
        mine = self.value
        if type(self) is not type(other):
            if not isinstance(other, type(mine)) and not (
                    isinstance(mine, _NUMBERS) and isinstance(other, _NUMBERS)):
                return NotImplemented
            return verdict(mine, other)
        return verdict(mine, other.value)

    def __eq__(self, other):
        return self._compare(other, _same)

    def __ne__(self, other):
        return self._compare(other, lambda *pair: not _same(*pair))

    def __lt__(self, other):
        return self._compare(other, lt)

    def __le__(self, other):
        return self._compare(other, le)

    def __gt__(self, other):
        return self._compare(other, gt)

    def __ge__(self, other):
        return self._compare(other, ge)

    __hash__ = None

    def __repr__(self):
        return '%s(%r)' % (type(self).__name__, self.value)


class Holder(Proxy):
    """A counted pointer of the platform: keeps a native object alive."""

    def __init__(self):
        raise TypeError('%s objects come from the SDK' % type(self).__name__)

    @property
    def pointer(self):
        """A plain pointer to the object, or None. The holder must outlive
        it."""
        return companion.held_pointer(self)

    def __nonzero__(self):
        return self.pointer is not None

    def __repr__(self):
        return '<%s to %r>' % (type(self).__name__, self.pointer)


def box(type_name, value=None):
    """A native variable for a parameter `type_name *`, read and written by
    its `value`: box('int'), box('bcm_color_t', bcmColorRed), box('char *').
    """
    variable = companion.Array(type_name, 1)
    if value is not None:
        variable.value = value
    return variable


def _same(left, right):
    """Equality of two field values."""
    if isinstance(left, Struct):
        return left.equals(right)
    if isinstance(left, companion.Array):
        return len(left) == len(right) and all(
            _same(*pair) for pair in zip(left, right))
    return left == right


def _is_zero(value):
    if isinstance(value, Struct):
        return all(_is_zero(part) for _, part in value.items())
    if isinstance(value, companion.Array):
        return all(_is_zero(part) for part in value)
    if isinstance(value, Value):
        return _is_zero(value.value)
    return not value or value == '00:00:00:00:00:00'


class _FieldTable(object):
    """The docstring of a structure, made when somebody reads it."""

    def __get__(self, instance, owner):
        return ('Structure of the SDK. Fields and their types:\n\n'
                + owner._table)


_FIELD_TABLE = _FieldTable()


def struct_class(name, table, rows):
    """The class of a structure, registered with the module. `table` has a
    line "name: type" for each field."""
    members = {
        '__doc__': _FIELD_TABLE,
        '__module__': 'OmbraSdkV2Helper',
        '__swig_destroy__': rows['delete_' + name],
        '_new': rows['new_' + name],
        '_table': table,
    }
    members['_fields'] = companion.add_fields(members, name, table, rows)
    made = companion.new_class(name, Struct, members)
    rows[name + '_swigregister'](made)
    return made


def box_class(name, element, rows):
    """The class of a box, registered with the module. `element` is the class
    of a structure, or None for a number."""
    members = {
        '__doc__': 'A native variable for a parameter that is a pointer.',
        '__module__': 'OmbraSdkV2Helper',
        '__swig_destroy__': rows['delete_' + name],
        '_new': rows['new_' + name],
        '_cast': rows[name + '_cast'],
        '_element': element,
        'frompointer': staticmethod(rows[name + '_frompointer']),
        'value': property(rows[name + '_value'], rows[name + '_assign'],
                          doc='the element behind the pointer'),
    }
    made = type(name, (StructBox if element else Box,), members)
    rows[name + '_swigregister'](made)
    return made


def value_class(name, type_name):
    """The class of an opaque value, registered with the module's type."""
    made = type(name, (Value,), {
        '__doc__': 'The value type %s.' % type_name,
        '__module__': 'OmbraSdkV2Helper',
        '__swig_destroy__': companion.delete_value,
        '_type': type_name,
    })
    companion.register_class(type_name, made)
    return made


def holder_class(name, type_name):
    """The class of a counted pointer, registered with the module's type."""
    made = type(name, (Holder,), {
        '__doc__': 'Keeps the object behind a %s alive.' % type_name,
        '__module__': 'OmbraSdkV2Helper',
        '__swig_destroy__': companion.delete_holder,
    })
    companion.register_class(type_name, made)
    return made
