"""The planted faults: one for each room of the code, and one for each rule of the call frame. Each
is a name, what is broken, the file, a text that stands there once, and what replaces it. They were
chosen before any was run; one that its text has left is chosen anew, not dropped."""

import collections

Fault = collections.namedtuple('Fault', 'name breaks file text replacement')

FRAME = 'convert/frame_body.h'
ACCESSOR = 'classes/accessor.cpp'
REFUSE = 'convert/refuse.cpp'

FAULTS = [Fault(*line) for line in (
    # The rules of the frame.
    ('frame-count', 'an argument more is taken', FRAME,
     'row.name), count, count,', 'row.name), count, count + 1,'),
    ('frame-first', 'reads on behind a refusal, whose exception the next replaces', FRAME,
     '.read(items[I], row, I) && ...)', '.read(items[I], row, I) & ...)'),
    ('frame-unwind', 'a cancelled thread stops unwinding', FRAME,
     '            throw;\n', '            return nullptr;\n'),
    ('frame-message', 'the text of the argument before', REFUSE,
     'for (; index > 0; --index)', 'for (; index > 1; --index)'),
    ('frame-null', 'a null reference is refused like a wrong type', REFUSE,
     'constexpr char kNullPrefix[] = "invalid null reference ";',
     'constexpr char kNullPrefix[] = "invalid null ";'),
    ('frame-exception', 'a refused range is a RuntimeError', REFUSE,
     'is_range_failure(error) ? PyExc_ValueError', 'false ? PyExc_ValueError'),
    ('frame-order', 'a MAC setter looks at its object before its value', ACCESSOR,
     '''    MacString value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField) ||
        !require_self(row, self)) {''',
     '''    MacString value;
    if (!read_setter(row, args, self, object) || !require_self(row, self) ||
        !value.read(object, row.call, kField)) {'''),
    ('frame-clean-up', 'the record of a refused call is not released', 'api/list_results.cpp',
     '~Filled() { ::operator delete(memory_); }', '~Filled() {}'),
    ('frame-reference', 'a pointer object keeps a reference that nobody owns',
     'convert/results.cpp', '    Py_DECREF(bare);\n', ''),
    ('frame-overflow', 'a long that does not fit is a TypeError', 'convert/readers.cpp',
     'return STATUS_OVERFLOW;', 'return STATUS_TYPE;'),
    ('frame-result', 'a list of results grows at its front', 'runtime/append_output.cpp',
     'PyList_Append(merged.get(), item.get())', 'PyList_Insert(merged.get(), 0, item.get())'),
    ('frame-text', 'no text comes back as the empty one', 'convert/results.cpp',
     'if (text == nullptr) Py_RETURN_NONE;',
     'if (text == nullptr) return PyString_FromString("");'),
    ('frame-variable', 'a variable of the module cannot be deleted, but says nothing',
     'runtime/variable_link.cpp', '    if (result == 1) raise_unknown(name);\n', ''),
    # The rooms of the module.
    ('runtime-disown', 'a setter that keeps a pointer leaves it with Python',
     'runtime/pointer_conversion.cpp', '!= 0) match.link->own = 0;', '== -1) match.link->own = 0;'),
    ('runtime-in-flight', 'a death loses the exception on its way', 'runtime/pointer_object.cpp',
     '    PyErr_Restore(type, value, traceback);\n', ''),
    ('runtime-neighbour', 'types of a module that was loaded later are not found',
     'runtime/type_table.cpp', '    } while (table != head);', '    } while (false);'),
    ('convert-port', 'the first number behind a port list is taken', 'convert/port_list.cpp',
     'if (port >= kBits)', 'if (port > kBits)'),
    ('convert-mac', 'the last separator of an address is not looked at', 'convert/mac_text.cpp',
     '(i + 1 < kBytes && text', '(i + 2 < kBytes && text'),
    ('classes-overlap', 'an array field that overlaps its source', ACCESSOR,
     'if (target + bytes <= source || source + bytes <= target) {', 'if (size != 0) {'),
    ('classes-live', 'an array is deleted through the row of its element', ACCESSOR,
     'if (is_live_array(memory)) {', 'if (memory == &kSelf) {'),
    ('api-set', 'the identifier behind the last of a set', 'api/exported.cpp',
     'return id >= 0 && id < count;', 'return id >= 0 && id <= count;'),
    ('api-tuple', 'a list that is refused is a whole tuple', 'api/tuple_results.cpp',
     'if (status != BCM_E_NONE) return tuple_of(PyInt_FromLong(status), none(), none());', ''),
    ('device-order', 'the unit is checked before the PHY', 'device/mdio_bridge.cpp',
     'const Hardware::TesselApi::ExternalPhyId checked_phy(',
     'Hardware::TesselApi::UnitId(static_cast<std::uint32_t>(unit));\n'
     '    const Hardware::TesselApi::ExternalPhyId checked_phy('),
    ('device-shape', 'the third argument of the short form is not looked at',
     'device/find_chip_memory.cpp', ' && could_be_int(items[1]) && could_be_int(items[2]))',
     ' && could_be_int(items[1]))'),
    # The generator.
    ('generator-model', 'bounds without a blank before them', 'generator/model/model.cpp',
     '(i == 0 ? " [" : "[")', '"["'),
    ('generator-read', 'a directive ends at its first line', 'generator/read/lexer.cpp',
     "                end = source_.find('\\n', end + 1);", '                break;'),
    ('generator-check', 'a row may have ten arguments', 'generator/check/check.cpp',
     'kMostArguments = 9;', 'kMostArguments = 10;'),
    ('generator-standin', 'a key of eight bytes is no number', 'generator/standin/keys.cpp',
     'column.number = column.size <= 8 &&', 'column.number = column.size <= 4 &&'),
    ('generator-emit', 'items of arrays are set where they are read',
     'generator/emit/emit_helpers.cpp', '? "get_item<" : "set_item<"',
     '? "set_item<" : "get_item<"'),
    # The stand-in.
    ('standin-base', 'a fault counts once more', 'standin/base/faults.cpp',
     'fault.count = *value;', 'fault.count = *value + 1;'),
    ('standin-model', 'an L2 table takes one row more than it holds', 'standin/model/l2_table.cpp',
     'if (size() >= capacity) return nullptr;', 'if (size() > capacity) return nullptr;'),
    ('standin-generic', 'a second row of one key replaces the first', 'standin/generic/answer.cpp',
     'if (!replaces) return BCM_E_EXISTS;', 'if (!replaces) replaces = true;'),
    ('standin-chapters', 'a VLAN may be made twice', 'standin/chapters/vlan_calls.cpp',
     'if (all.find(vid) != nullptr) return BCM_E_EXISTS;', ''),
    ('standin-regs', 'the upper word of an override', 'standin/regs/access.cpp',
     'uint64 wide = uint64{value[1]} << 32 |', 'uint64 wide = uint64{value[1]} << 31 |'),
    ('standin-phy', 'a translation that fails counts', 'standin/phy/phy.cpp',
     'translate(unit, &port) < 0 ?', 'translate(unit, &port) > 0 ?'),
    ('standin-text', 'a range of one port', 'standin/text/port_text.cpp',
     '*first > *last)', '*first >= *last)'),
    ('standin-shell', 'a sharp sign within a word begins a comment', 'standin/shell/reader.cpp',
     "sign == '#' && !open_", "sign == '#'"),
    ('toolkit-count', 'an object whose destructor shares it dies twice', 'standin/toolkit/ptr.cpp',
     'if ((before & disposingFlag) != 0) return;', 'if (before == ~0U) return;'),
    ('toolkit-string', 'the last holder of a text leaves it', 'standin/toolkit/string.cpp',
     'memory_order_acq_rel) == 1)', 'memory_order_acq_rel) == 0)'),
    # The Python face.
    ('python-check', 'a value behind a status comes as a tuple', 'python/OmbraSdkV2Helper.py',
     'if len(rest) == 1:', 'if len(rest) == 0:'),
    ('python-proxy', 'structures of two classes may be equal', 'python/_OmbraSdkV2Proxy.py',
     'return type(self) is type(other) and all(', 'return all('),
    ('companion-range', 'twice the range of a signed element', 'python/companion/element.cpp',
     'std::uint64_t{1} << (width - 1)', 'std::uint64_t{1} << width'),
    ('companion-cookie', 'a released number is given out again', 'python/companion/callbacks.cpp',
     'return ++last;', 'return last + 1;'),
)]
