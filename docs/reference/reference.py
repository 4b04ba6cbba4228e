"""Writes the reference: the pages that a person browses and searches.

usage: reference.py ROOT BUILD OUT

Everything on the pages comes from the declarations (made/model.json), from the
module itself and from the sources of the stand-in. The pages need no server.
"""

import collections
import inspect
import json
import os
import re
import shutil
import sys

import _OmbraSdkV2Classes as tables
import _OmbraSdkV2Guide as guide
import _OmbraSdkV2Helper as native
import _OmbraSdkV2Status as status_module
import OmbraSdkV2Helper as sdk

import standin
import statuses
from markup import Page, code, escaped, table

HERE = os.path.dirname(os.path.abspath(__file__))

VARIABLE_KINDS = {
    'int': 'a number, read and written',
    'text': 'a text or None, read and written',
    'struct': 'read as the structure in place; writing copies one into it',
    'pointer-array': 'read as a pointer to the array; writing copies all of '
                     'its %s elements',
    'function': 'read as a function pointer or None; written with a callback',
    'read-only-array': 'read as a pointer to its first element; not written',
    'read-only-constant': 'always %s; not written',
}

# Words behind which functions end: how each generated rule of the stand-in
# answers.
RULES = {
    'generic-pair': 'what the set form stores the get form reads',
    'generic-table': 'a table of rows by key',
    'generic-object': 'objects with ids: what create makes, destroy takes away',
    'generic-statistic': 'counters that are set and read',
    'init': 'forgets what the chapter has stored',
    'qualifier': 'stores and reads the qualifier of a rule',
    'registration': 'keeps the callback, which nothing calls',
    'still': 'gives zeros and no elements: what it tells of never moves here',
    'unavailable': 'refuses',
}


def page_of_header(header):
    """'bcm_l2_types' for 'platform/sdk/bcm/l2_types.h'."""
    name = re.sub(r'^platform/(sdk/)?|\.h$', '', header)
    return name.replace('/', '_')


def family_of(constant):
    """'bcmField' of 'bcmFieldQualifySrcIp', 'BCM_E' of 'BCM_E_UNIT'."""
    words = re.match(r'[a-z]+[A-Z][a-z0-9]*|[A-Z0-9]+(?:_[A-Z0-9]+(?=_))?|\w+',
                     constant)
    return words.group()


class Reference(object):
    """All pages, and where each name stands."""

    def __init__(self, root, build):
        with open(os.path.join(build, 'made', 'model.json')) as stream:
            self.model = json.load(stream)
        self.root = root
        self.functions = [row for row in self.model['rows']
                          if row['role'] == 'function']
        self.by_name = dict((row['name'], row) for row in self.model['rows'])
        self.class_rows = collections.defaultdict(list)
        for row in self.model['rows']:
            if 'class' in row and row['role'] != 'registration':
                self.class_rows[row['class']].append(row['name'])
        self.answers = {}
        with open(os.path.join(build, 'made', 'standin_calls.txt')) as calls:
            for line in calls:
                name, answer = line.rstrip('\n').split('\t')[:2]
                self.answers[name] = answer
        self.statuses = statuses.Statuses(
            [os.path.join(root, 'standin'), os.path.join(build, 'made')],
            [self.native_name(row) for row in self.functions])
        self.examples = self.read_examples()
        self.users = self.users_of_types()
        self.places = {}  # name -> page
        self.index = []   # [page, kind, names, words]
        self.pages = []

    @staticmethod
    def native_name(row):
        return row['native'].split('::')[-1]

    def read_examples(self):
        """Names of functions, with the examples that use them."""
        used = collections.defaultdict(list)
        folder = os.path.join(self.root, 'examples')
        self.sources = []
        for name in sorted(os.listdir(folder)):
            if not name.endswith('.py'):
                continue
            with open(os.path.join(folder, name)) as source:
                text = source.read()
            self.sources.append((name, text))
            for word in sorted(set(re.findall(r'\w+', text))):
                used[word].append(name)
        return used

    def users_of_types(self):
        """Declared words in arguments, with the functions that take them."""
        users = collections.defaultdict(list)
        for row in self.functions:
            words = set(word for argument in guide.entries[row['name']].types
                        for word in re.findall(r'[\w:]+', argument))
            for word in words:
                users[word].append(row['name'])
                users[word.split('::')[-1]].append(row['name'])
        return dict((word, sorted(set(names)))
                    for word, names in users.iteritems())

    # Names and links.

    def enter(self, page, kind, names, words=''):
        """Names that stand on a page, for links and for the search."""
        names = list(names)
        for name in names:
            self.places.setdefault(name, page)
        if names:
            self.index.append([page, kind, ' '.join(names), words])

    def link(self, name, text=None):
        page = self.places.get(name)
        shown = escaped(text or name)
        if page is None:
            return shown
        return '<a href="%s.html#%s">%s</a>' % (page, name, shown)

    def linked(self, text):
        """A text with each known name in it as a link."""
        return re.sub(r'[A-Za-z_]\w*|[&<>]', lambda match: self.link(
            match.group()) if match.group() not in '&<>' else escaped(
                match.group()), text)

    def links(self, names):
        return ', '.join('<code>%s</code>' % self.link(name) for name in names)

    # What stands where: filled before any page is written.

    def enter_all(self):
        for header in self.model['headers']:
            page = page_of_header(header['file'])
            sections = collections.OrderedDict()
            for row in self.functions:
                if row['header'] == header['file']:
                    sections.setdefault(row['section'], []).append(row['name'])
            for section, names in sections.iteritems():
                self.enter(page, 'function', names,
                           (header['purpose'] + ' ' + section).strip())
            for record in self.model['classes']:
                if record['header'] == header['file']:
                    self.enter_class(page, record)
        self.enter('callbacks', 'callback', self.callback_names())
        self.enter('values', 'value class', self.value_names())
        self.enter('boxes', 'row', [row['name'] for row in self.helper_rows()])
        self.enter('boxes', 'box', [name for name, _ in tables.BOXES])
        self.enter('variables', 'variable',
                   [row['name'] for row in self.model['variables']])
        for page, families in self.constant_pages():
            self.enter(page, 'constant',
                       [name for names in families.values()
                        for name, _ in names])
        self.enter('proxy', 'of the proxy', self.proxy_names())
        self.enter('examples', 'example', [name for name, _ in self.sources])

    def enter_class(self, page, record):
        name = record['name']
        rows = self.class_rows[name] + [name + '_swigregister']
        self.enter(page, 'structure', [name])
        self.enter(page, 'field', [name + '.' + field['name']
                                   for field in record['fields']])
        self.enter(page, 'row of ' + name, rows)

    def callback_names(self):
        return sorted(name for name, value in vars(sdk).iteritems()
                      if isinstance(value, type(len))
                      and 'native callback' in (value.__doc__ or '')
                      and re.match(r'\w+$', name))

    def value_names(self):
        names = [name for name, _ in tables.HOLDERS]
        for name, _, others in tables.VALUES:
            names += (name,) + others
        return names

    def helper_rows(self):
        known = set(record['name'] + '_swigregister'
                    for record in self.model['classes'])
        return [row for row in self.model['rows']
                if row['role'] in ('box', 'array') or (
                    row['role'] == 'registration'
                    and row['name'] not in known)]

    def constant_pages(self):
        """Pages with their constants by family, in the order of setting."""
        pages = collections.OrderedDict()
        for name, value in self.model['install']:
            if value is None:
                continue
            first = re.match(r'[a-z]+|[A-Z]+_|', name).group().rstrip('_')
            if first not in ('bcm', 'BCM', 'SOC', 'snmp'):
                first = 'other'
            page = 'constants_' + (first if first != 'BCM' else 'BCM_')
            pages.setdefault(page, collections.OrderedDict()).setdefault(
                family_of(name), []).append((name, value))
        return pages.items()

    def proxy_names(self):
        made = set(name for name, _ in tables.CLASSES + tables.BOXES)
        made.update(self.value_names() + self.callback_names())
        return sorted(name for name in sdk.__all__
                      if name not in vars(native) and name not in made
                      and re.match(r'\w+$', name))

    # Pages.

    def page(self, name, title, intro):
        page = Page(name, title, intro)
        self.pages.append(page)
        return page

    def write_header(self, header):
        name = page_of_header(header['file'])
        functions = [row for row in self.functions
                     if row['header'] == header['file']]
        classes = [record for record in self.model['classes']
                   if record['header'] == header['file']]
        if not functions and not classes:
            return
        page = self.page(name, name, header['purpose'])
        page.add('<p>Declared in <code>%s</code>.</p>' % header['file'])
        twin = name[:-6] if name.endswith('_types') else name + '_types'
        if twin in self.places.values():
            page.add('<p>See also <a href="%s.html">%s</a>.</p>' % (twin, twin))
        section = None
        page.add('<p class="names">%s</p>' % ' '.join(
            code(self.link(one['name'])) for one in functions + classes))
        for row in functions:
            if row['section'] != section:
                section = row['section']
                page.add('<h2>%s</h2>' % escaped(section))
            page.add(self.function_text(row))
        for record in classes:
            page.add(self.class_text(record))

    def function_text(self, row):
        name = row['name']
        entry = guide.entries[name]
        calls_back = name in tables.CALLBACKS
        doc = row['doc'].strip().split('\n')
        parameters = guide.parameters(getattr(native, name))
        parts = ['<section id="%s"><h3>%s</h3>' % (
            name, '<br>'.join(code(escaped(line)) for line in doc if line))]
        parts.append(table(
            ('argument', 'declared type', 'what to pass'),
            [(code(escaped(parameter)), code(self.linked(declared)),
              self.linked(guide.value_of(declared, calls_back)) or 'a number')
             for parameter, declared in zip(parameters, entry.types)]))
        parts.append('<p><b>Returns</b> %s.</p>' % self.linked(
            guide.result_of(getattr(native, name), entry)))
        parts.append('<pre>%s</pre>' % self.linked(
            sample(name, parameters, entry)))
        if guide.taker(name):
            parts.append('<p>Calls back: %s passes a Python callable.</p>'
                         % code(self.link(guide.taker(name))))
        others = guide.related(name)
        if others:
            parts.append('<p><b>Related</b> %s</p>' % self.links(others))
        if name in self.examples:
            parts.append('<p><b>Examples</b> %s</p>' % self.links(
                self.examples[name]))
        parts.append(self.standin_text(row))
        return '\n'.join(parts + ['</section>'])

    def standin_text(self, row):
        if row['name'] not in self.answers:
            return '<p><b>Answered</b> by the module itself.</p>'
        answer = self.answers[row['name']]
        text = code(answer) if '/' in answer else 'the rule %s (%s)' % (
            answer, RULES[answer])
        found = [name for name in self.statuses.statuses(
            self.native_name(row)) if name in self.places]
        if found and row['name'] not in tables.NUMBERS and (
                row['result_type'] != ''):
            text += '; its refusals are among ' + self.links(found)
            if row['name'] in tables.CALLBACKS:
                text += ', and what the callback answers'
        return '<p><b>Stand-in</b> %s.</p>' % text

    def class_text(self, record):
        name = record['name']
        fields = []
        for field, line in zip(record['fields'],
                               guide.fields(name).splitlines()):
            own, declared = line.split(': ', 1)
            rows = ['<code id="%s_%s_%s">%s_%s_%s</code>' % (
                (name, own, verb) * 2) for verb in ('get', 'set')
                    if '%s_%s_%s' % (name, own, verb) in self.by_name]
            fields.append((
                '<code id="%s.%s">%s</code>' % (name, own, own),
                code(self.linked(declared)), str(field['offset']),
                '<br>'.join(rows)))
        parts = ['<section id="%s"><h3>structure %s</h3>' % (name, code(name)),
                 '<p>%d bytes. A new one is zero but for the fields given: '
                 '<code>%s(%s)</code>.</p>' % (
                     record['size'], name, ', '.join(
                         field['name'] + '=...'
                         for field in record['fields'][:2])),
                 table(('field', 'type', 'offset', 'rows behind it'), fields)]
        others = ['new_' + name, 'delete_' + name, name + '_swigregister']
        parts.append('<p>Rows of the plain module: %s.</p>' % ', '.join(
            '<code id="%s">%s</code>' % (row, row) for row in others))
        users = self.users.get(name, ())
        if users:
            parts.append('<p><b>Taken by</b> %s</p>' % self.links(users))
        return '\n'.join(parts + ['</section>'])

    def write_constants(self):
        for name, families in self.constant_pages():
            page = self.page(name, 'constants ' + name[10:].rstrip('_'),
                             'The constants of this family of names.')
            page.add('<p class="names">%s</p>' % ' '.join(
                '<a href="#family-%s">%s</a>' % (family, family)
                for family in families))
            for family, constants in families.iteritems():
                page.add('<h2 id="family-%s">%s</h2>' % (family, family))
                page.add(table(('constant', 'value', ''), [
                    ('<code id="%s">%s</code>' % (one, one), str(value),
                     meaning_of(one)) for one, value in constants]))

    def write_variables(self):
        page = self.page('variables', 'variables', (
            'The variables of the SDK, as attributes of cvar: reading one '
            'reads the native variable.'))
        page.add(table(('variable', 'declared type', 'how it behaves'), [
            ('<code id="%s">cvar.%s</code>' % (row['name'], row['name']),
             code(self.linked(row['type'])),
             VARIABLE_KINDS[row['kind']].replace('%s', row['detail']))
            for row in self.model['variables']]))

    def write_callbacks(self):
        page = self.page('callbacks', 'callbacks', (
            'The native callbacks: each calls a Python callable, which a '
            'cookie names, or bind() where the SDK passes no cookie.'))
        with_cookie = set(name for name, _, _ in tables.CALLBACKS.values())
        rows = []
        for name in self.callback_names():
            signature = getattr(sdk, name).__doc__.split('\n')[0].partition(
                ', ')[2]
            takers = self.users.get(name, ())
            rows.append((
                '<code id="%s">%s</code>' % (name, name),
                code(self.linked(signature)),
                'a cookie' if name in with_cookie else 'bind()',
                self.links(takers)))
        page.add(table(('callback', 'signature', 'callable named by',
                        'taken by'), rows))
        page.add('<p>The callable gets the arguments without the cookie, and '
                 'returns a number, or None for success. See %s, %s, %s.</p>'
                 % tuple(code(self.link(name)) for name in (
                     'cookie', 'bind', 'traverse')))

    def write_values(self):
        page = self.page('values', 'values', (
            'Classes of values that the SDK knows by name alone, and of '
            'counted pointers.'))
        rows = []
        for name, type_name, others in tables.VALUES:
            for one in (name,) + others:
                rows.append(('<code id="%s">%s(value)</code>' % (one, one),
                             code(escaped(type_name)),
                             self.links(self.users.get(one, ()))))
        for name, type_name in tables.HOLDERS:
            rows.append(('<code id="%s">%s</code>' % (name, name),
                         code(escaped(type_name)), 'comes from the SDK'))
        page.add(table(('class', 'type', 'taken by'), rows))

    def write_boxes(self):
        page = self.page('boxes', 'boxes and arrays', (
            'Rows of the plain module that make, read and write native '
            'variables and arrays; the proxy has box() and Array for all '
            'types.'))
        for name, element in tables.BOXES:
            page.add('<p id="%s"><code>%s(value)</code>: a variable of %s.</p>'
                     % (name, name, self.linked(element or 'a number')))
        page.add(table(('row', 'argument types'), [
            ('<code id="%s">%s</code>' % (
                row['name'], escaped(row['doc'] or row['name'])),
             code(escaped(', '.join(argument['type']
                                    for argument in row['arguments']))))
            for row in self.helper_rows()]))

    def write_proxy(self):
        page = self.page('proxy', 'the proxy module', (
            'What OmbraSdkV2Helper adds to the rows of the SDK.'))
        page.add('<pre>%s</pre>' % self.linked(sdk.__doc__))
        for name in self.proxy_names():
            value = getattr(sdk, name)
            page.add('<section id="%s"><h3>%s</h3><pre>%s</pre>' % (
                name, code(escaped(signature_of(name, value))),
                self.linked(inspect.getdoc(value) or repr(value))
                if not isinstance(value, (int, long)) else hex(value)))
            if inspect.isclass(value):
                page.add(self.methods_text(value))
            page.add('</section>')

    def methods_text(self, owner):
        methods = [(name, getattr(owner, name)) for name in sorted(dir(owner))
                   if name[0] != '_']
        return table(('member', ''), [
            (code(escaped(signature_of(name, value))),
             escaped(inspect.getdoc(value) or ''))
            for name, value in methods if inspect.getdoc(value)])

    def write_statuses(self):
        page = self.page('statuses', 'statuses', (
            'The statuses of the SDK and of its shell, by number. With the '
            'stand-in a fault of the store makes a call answer any of them.'))
        rows = sorted(((value, name) for name, value in self.model['install']
                       if value is not None and re.match(
                           r'(BCM_E|SOC_E|CMD)_', name)), reverse=True)
        page.add(table(('number', 'name', 'meaning'), [
            (str(value), code(self.link(name)), meaning_of(name))
            for value, name in rows]))

    def write_examples(self):
        page = self.page('examples', 'examples', (
            'Programs for one job each, which the tests run on the '
            'stand-in.'))
        for name, text in self.sources:
            page.add('<section id="%s"><h3>%s</h3><pre>%s</pre></section>' % (
                name, name, self.linked(text)))

    def write_index(self):
        page = self.page('index', 'Reference', (
            'Every function, structure, constant and variable of the module, '
            'by the header that declares it.'))
        page.add('<p>%d rows, %d constants, %d variables. The box above '
                 'searches names, and chapters with their sections.</p>' % (
                     len(self.model['rows']) + 1,
                     sum(value is not None
                         for _, value in self.model['install']),
                     len(self.model['variables'])))
        page.add(table(('page', 'what is on it'), [
            ('<a href="%s.html">%s</a>' % (one.name, one.title),
             escaped(one.intro)) for one in self.pages if one is not page]))
        page.add('<p>The first row of the plain module, <code id="%s">%s'
                 '</code>, makes an instance method of a built-in.</p>' % (
                     ('SWIG_PyInstanceMethod_New',) * 2))

    def write(self, out):
        self.enter_all()
        self.write_proxy()
        self.write_examples()
        for header in self.model['headers']:
            self.write_header(header)
        self.write_callbacks()
        self.write_values()
        self.write_boxes()
        self.write_variables()
        self.write_statuses()
        self.write_constants()
        standin.StandinPage(self).write(self.page(
            'standin', 'the stand-in', (
                'Who answers each function where there is no chip, by '
                'chapter.')))
        self.enter('index', 'row', ['SWIG_PyInstanceMethod_New'])
        self.write_index()
        if not os.path.isdir(out):
            os.makedirs(out)
        for page in self.pages:
            page.write(out)
        with open(os.path.join(out, 'search_index.js'), 'w') as index:
            index.write('ombraIndex(%s);\n' % json.dumps(
                self.index, separators=(',', ':')))
        for name in ('search.js', 'style.css'):
            shutil.copy(os.path.join(HERE, name), out)


def sample(name, parameters, entry):
    """Lines of Python that call a function."""
    lines, passed = [], []
    taker = guide.taker(name)
    callback = taker and (tables.CALLBACKS.get(name)
                          or tables.BOUND[name] + (None,))
    for place, declared in enumerate(entry.types):
        parameter = parameters[place]
        if callback and place == callback[2]:
            continue
        made = guide.expression(declared)
        if callback and place == callback[1]:
            parameter = 'visit'
        elif made:
            lines.append('%s = %s' % (parameter, made))
        passed.append(parameter)
    verb = taker or 'call'
    if taker == 'registered':
        twin = name[:-len('register')] + 'unregister'
        return '\n'.join(lines + ['with registered(%s):' % ', '.join(
            [name, twin] + passed), '    ...'])
    if entry.name in tables.NUMBERS:
        verb = ''
    if verb:
        lines.append('%s(%s)' % (verb, ', '.join([name] + passed)))
    else:
        lines.append('%s(%s)' % (name, ', '.join(passed)))
    return '\n'.join(lines)


def meaning_of(constant):
    for family, prefixes in status_module.FAMILIES.iteritems():
        for prefix in prefixes:
            if constant.startswith(prefix):
                return status_module.MEANINGS[family].get(
                    constant[len(prefix):], '')
    return ''


def signature_of(name, value):
    target = value.__init__ if inspect.isclass(value) else value
    try:
        spec = inspect.getargspec(target)
    except TypeError:
        return name
    shown = inspect.formatargspec(*spec)
    return name + re.sub(r'\(self(?:, )?', '(', shown, 1)


if __name__ == '__main__':
    Reference(sys.argv[1], sys.argv[2]).write(sys.argv[3])
