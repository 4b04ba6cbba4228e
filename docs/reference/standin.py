"""The page of the stand-in: by chapter who answers each function, and what its
objects, bits and events are. All of it is read out of the sources."""

import collections
import fnmatch
import os
import re

import _OmbraSdkV2Bench as bench

from markup import code, escaped, table

# "{Use::kMacVlan, ObjectKind::kMacRow, "vid", Bond::kFalls}"
_USE = re.compile(r'\{Use::k(\w+), ObjectKind::k(\w+), "(\w*)", Bond::k(\w+)\}')
_REGISTRATION = re.compile(r'\{k\w+, "(\w+)", "(\w*)", (true|false),\s*'
                           r'"([^"]+)"\}')
_NUMBERING = re.compile(r'(?:Numbering<[\w:]+> \w+\{|table_capacity\(|kName = )'
                        r'"(\w+)"(?:, |;\s+static constexpr std::size_t kCapacity = )(\w+)')
_CAPACITY = re.compile(r'constexpr (?:std::size_t|int) (k\w+) = ([\d\']+);')


def _sources(root):
    for place, _, names in sorted(os.walk(os.path.join(root, 'standin'))):
        for name in sorted(names):
            if name.endswith(('.cpp', '.h')):
                with open(os.path.join(place, name)) as source:
                    yield source.read()


def _words(name):
    """'a mac row' of 'MacRow'."""
    return re.sub(r'(?<!^)([A-Z])', r' \1', name).lower()


class StandinPage(object):

    def __init__(self, reference):
        self.reference = reference
        self.text = '\n'.join(_sources(reference.root))
        self.lines = []
        path = os.path.join(reference.root, 'catalogue', 'standin.txt')
        with open(path) as catalogue:
            for line in catalogue:
                if not line.startswith('#'):
                    self.lines.append(line.rstrip('\n').split('\t'))

    def write(self, page):
        for title, part in (
                ('Chapters', self.chapters()), ('Tables', self.tables()),
                ('What names what', self.references()),
                ('Bits of its own', self.bits()),
                ('Events', self.events())):
            page.add('<h2>%s</h2>' % title)
            page.add(part)

    # Who answers.

    def chapters(self):
        parts, lines = [], []
        for header in self.reference.model['headers']:
            rows = [row for row in self.reference.functions
                    if row['header'] == header['file']
                    and row['name'] in self.reference.answers]
            if not rows:
                continue
            ways = collections.OrderedDict()
            for row in rows:
                ways.setdefault(self.way(row['name']), []).append(row['name'])
            name = re.sub(r'^platform/(sdk/)?|\.h$', '', header['file'])
            counts = collections.Counter()
            for way, names in ways.iteritems():
                counts[way[0]] += len(names)
            lines.append(['<a href="#chapter_%s">%s</a>' % (
                name.replace('/', '_'), name)] + [str(counts[kind]) for kind in (
                    'modelled', 'generic', 'without an answer')])
            parts.append('<section id="chapter_%s"><h3>%s</h3><p>%s</p>' % (
                name.replace('/', '_'), name, escaped(header['purpose'])))
            parts.append(table(('', 'by', 'functions'), [
                (kind, self.reason(by), self.reference.links(names))
                for (kind, by), names in sorted(ways.iteritems())]))
            parts.append('</section>')
        lines.append(['<b>all</b>'] + [
            str(sum(int(line[place]) for line in lines))
            for place in (1, 2, 3)])
        return table(('chapter', 'modelled', 'generic', 'without an answer'),
                     lines) + '\n'.join(parts)

    def way(self, name):
        answer = self.reference.answers[name]
        if '/' in answer:
            return 'modelled', answer
        if answer != 'unavailable':
            return 'generic', answer
        return 'without an answer', max(
            [line[1] for line in self.lines if line[0] == 'none'
             and fnmatch.fnmatchcase(name, line[1])])

    def reason(self, by):
        if '/' in by:
            return code(by)
        return ''.join(escaped(line[3]) for line in self.lines
                       if line[0] == 'none' and line[1] == by) or by

    # What there is.

    def tables(self):
        sizes = dict(_CAPACITY.findall(self.text))
        return table(('table', 'entries'), [
            (code(name), sizes[size].replace("'", ','))
            for name, size in sorted(set(_NUMBERING.findall(self.text)))
            if size in sizes])

    def references(self):
        modelled = [(_words(user), field, _words(use).split(' ')[-1],
                     bond.lower())
                    for use, user, field, bond in _USE.findall(self.text)
                    if field]
        kinds = [(code(line[1]), escaped(line[2]), escaped(line[3]))
                 for line in self.lines if line[0] == 'names']
        return ('<p>An object of the model that <i>holds</i> another keeps it '
                'from going; one that <i>leaves</i> it loses the name and '
                'stays; one that <i>falls</i> goes along.</p>' +
                table(('user', 'field', 'names', 'when that goes'),
                      [(escaped(user), code(field), escaped(named), bond)
                       for user, field, named, bond in modelled]) +
                '<p>What a number names where a function has no model.</p>' +
                table(('type, or closer', 'names', ''), kinds))

    def bits(self):
        return table(('name in OmbraSdkV2Bench', 'value', 'meaning'), [
            (code(name), hex(value), escaped(meaning))
            for name, value, meaning in bench.BITS])

    def events(self):
        rows = _REGISTRATION.findall(self.text)
        return table(('registered by', 'called'), [
            (code(self.reference.link(name)),
             escaped(('' if callable_ == 'true' else 'never: ') + cause))
            for name, _, callable_, cause in rows])
