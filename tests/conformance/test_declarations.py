"""The rows against the headers, read here a second time and in another way
than the generator's: names, types and order of parameters and fields."""

import os
import re

from support import BY_NAME, CLASSES, FUNCTIONS, ROOT, ConformanceTest

# Types whose last word is no parameter's name.
WORDS = frozenset(
    'char short int long unsigned signed const void bool'.split())


def headers():
    """The text of each header, without comments and directives."""
    for folder in ('sdk', 'helper', 'native'):
        top = os.path.join(ROOT, 'platform', folder)
        for path, _, names in sorted(os.walk(top)):
            for name in sorted(names):
                with open(os.path.join(path, name)) as header:
                    text = header.read()
                text = re.sub(r'/\*.*?\*/|//[^\n]*', ' ', text, flags=re.S)
                text = re.sub(r'^ *#(.*\\\n)*.*$', '', text, flags=re.M)
                yield re.sub(r'\s+', ' ', text)


class Declarations(object):
    def __init__(self):
        self.functions = {}  # name -> [(result, [(type, name)])], by overload
        self.structures = {}  # name -> [(type, name)]
        self.arrays = {}  # typedef name -> spelling of the array
        for text in headers():
            self.read(text)

    def read(self, text):
        structure = r'typedef (?:struct|union) (\w* ?){([^}]*)} (\w+);'
        for tag, body, name in re.findall(structure, text):
            self.structures[name] = self.fields(body)
        for name, body in re.findall(r'; ?struct (\w+) {([^}]*)};', text):
            self.structures[name] = self.fields(body)
        text = re.sub(structure, ';', text)
        for element, name, bound in re.findall(
                r'typedef ([\w ]+) (\w+)\[([^]]*)\];', text):
            self.arrays[name] = '%s [%s]' % (element, bound)
        for statement in re.sub(r'OMBRA_(BEGIN|END)_DECLS', '',
                                text).split(';'):
            prototype = re.match(r'([\w:]+(?: \w+)*[ *]+)(\w+) ?\((.*)\)$',
                                 re.split('[{}]', statement)[-1].strip())
            if prototype and not statement.strip().startswith('typedef'):
                result, name, parameters = prototype.groups()
                self.functions.setdefault(name, []).append(
                    (result.strip(), self.parameters(parameters)))

    def fields(self, body):
        return [self.variable(field)
                for field in re.findall(r' ?([^;]+);', body)]

    def parameters(self, text):
        if text in ('', 'void'):
            return []
        return [self.variable(part.strip()) for part in text.split(',')]

    def variable(self, text):
        """(type as messages spell it, name or nothing)"""
        declared, bounds = re.match(r'([^[]*)((?:\[[^]]*\])*)', text).groups()
        declared, bounds = declared.strip(), re.findall(r'\[[^]]*\]', bounds)
        name = re.search(r'(\w+)$', declared)
        if (name and name.group(1) not in WORDS and name.start() and
                declared[:name.start()].strip() not in ('const', 'struct')):
            declared = declared[:name.start()].strip()
        else:
            name = None
        spelled = re.sub(r' ?((?:\* ?)+)$',
                         lambda stars: ' ' + stars.group(1).replace(' ', ''),
                         declared)
        if bounds:
            spelled += ' ' + ''.join(bounds)
        return spelled, name and name.group(1)

    def argument(self, kind):
        """A parameter's type: arrays by another name show as arrays, but for
        MAC addresses, which are texts in Python."""
        return kind if kind == 'bcm_mac_t' else self.arrays.get(kind, kind)


DECLARED = Declarations()


class FunctionTest(ConformanceTest):
    def test_rows_say_what_the_prototypes_say(self):
        tried = 0
        for row in FUNCTIONS:
            if row.hand_written or row.module_native:
                continue
            (result, parameters), = DECLARED.functions[row.name]
            if row.appended:
                parameters = parameters[:-1]
            names = [name or 'arg%d' % (place + 1)
                     for place, (_, name) in enumerate(parameters)]
            arrow = '' if result == 'void' else ' -> ' + result
            self.same(row.doc, '%s(%s)%s' % (row.name, ', '.join(names),
                                             arrow), row.name)
            self.same([argument.type for argument in row.arguments],
                      [DECLARED.argument(kind) for kind, _ in parameters],
                      row.name)
            tried += 1
        self.finish()
        self.assertGreater(tried, 4100)


class FieldTest(ConformanceTest):
    def test_classes_have_the_fields_of_their_structures(self):
        for record in CLASSES:
            declared = DECLARED.structures[record.name]
            self.same([(field['declared'], field['name'])
                       for field in record.fields], declared, record.name)
            rows = [record.name + '_' + name + form
                    for _, name in declared for form in ('_set', '_get')]
            self.same([name for name in rows if name not in BY_NAME], [],
                      record.name)
        self.finish()
