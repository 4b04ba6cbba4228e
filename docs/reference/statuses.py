"""Which statuses the stand-in can answer a function with, as its sources say.

A function answers with the statuses that its own body names and with those of
the functions that it calls, all the way down. A generated answer names its
operation, and the statuses of that stand beside it in standin/generic/call.h.
This is what may come, not what will: a status that only another caller of a
shared function can meet is told as well.
"""

import collections
import os
import re

_COMMENT = re.compile(r'//[^\n]*|/\*.*?\*/', re.S)
_TEXT = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'')
_STATUS = re.compile(r'\b(?:BCM_E|SOC_E|CMD)_[A-Z_]+\b')
_WORD = re.compile(r'\b[A-Za-z_]\w*\b')
# Members of the language's own containers are not followed.
_CALLED = re.compile(
    r'(?<!std::)(?<!\w)(?!(?:\.|->)(?:find|at|size|begin|end|insert|erase|clear|count|empty|'
    r'data|get|push_back|emplace|value|reset|name|read|write|set)\b)(?:\.|->)?'
    r'([A-Za-z_]\w*)(?=\s*(?:<[\w:, ]*>)?\s*\()|\b(Operation::\w+)|'
    r'\.(owner) = ')
_DEFINE = re.compile(r'^#define (\w+)\b((?:.*\\\n)*.*)', re.M)
_OPERATION = re.compile(r'^ +(\w+)[, ] *// (.*)$', re.M)
_OPEN = re.compile(r'\b(namespace|extern|struct|class|enum|union)\b')

_INCLUDE = re.compile(r'^#include "(standin/[^"]+)"', re.M)
_TRANSPARENT = ('namespace', 'extern', 'struct', 'class', 'union')
# Statuses that only tell that all is well.
_FINE = frozenset(('BCM_E_NONE', 'SOC_E_NONE', 'CMD_OK', 'BCM_E_', 'CMD_'))


def _blocks(text):
    """Pairs of what stands before a body and the body, for each function of a
    source without comments and texts. Bodies of namespaces and classes are
    looked into."""
    start = at = 0
    while at < len(text):
        letter = text[at]
        if letter == ';' or letter == '}':
            yield text[start:at], ''
            start = at + 1
        elif letter == '{':
            head = text[start:at]
            opened = _OPEN.search(head)
            if head.count('(') > head.count(')'):  # of a default
                at = _end_of_block(text, at)
                continue
            if '(' in head or not opened or opened.group(1) not in _TRANSPARENT:
                end = _end_of_block(text, at)
                yield head, text[at:end]
                at, start = end - 1, end
            else:
                start = at + 1
        at += 1


def _end_of_block(text, at):
    depth = 0
    for match in re.compile('[{}]').finditer(text, at):
        depth += 1 if match.group() == '{' else -1
        if depth == 0:
            return match.end()
    return len(text)


def _stem(path):
    """'standin/model/ports' of the header and of the source beside it."""
    stem = os.path.splitext(path)[0]
    return stem[stem.rindex('standin'):] if 'standin/' in stem else stem


class Statuses(object):
    """What the sources below `folders` say; `statuses(name)` answers."""

    def __init__(self, folders, wanted):
        self._wanted = frozenset(wanted)
        self._bodies = collections.defaultdict(list)  # name -> [(file, text)]
        self._looked = {}
        self._included = {}  # file -> stems of what it includes
        self._headers = {}   # the same by the stem of a header
        self._sight = {}
        for folder in folders:
            for place, _, names in sorted(os.walk(folder)):
                for name in sorted(names):
                    if name.endswith(('.cpp', '.h')) and (
                            'standin' in os.path.join(place, name)):
                        self._read(os.path.join(place, name))

    def _read(self, path):
        with open(path) as source:
            text = source.read()
        if path.endswith('generic/call.h'):
            listed = text[text.index('enum class Operation'):]
            for operation, words in _OPERATION.findall(
                    listed[:listed.index('}')]):
                self._bodies['Operation::' + operation].append((path, words))
        self._included[path] = frozenset(
            os.path.splitext(name)[0] for name in _INCLUDE.findall(text))
        if path.endswith('.h'):
            self._headers[_stem(path)] = self._included[path]
        text = _TEXT.sub('""', _COMMENT.sub('', text))
        for name, body in _DEFINE.findall(text):
            self._bodies[name].append((path, body))
        text = _DEFINE.sub('', text)
        text = re.sub(r'(?m)^#.*$', '', text)
        for head, body in _blocks(text):
            self._enter(path, head, body)

    def _enter(self, path, head, body):
        macro = re.match(r'\s*([A-Z][A-Z0-9_]+)\s*\(', head)
        if macro:  # one that defines functions spells their names
            for line in re.findall(r'[A-Z][A-Z0-9_]+\s*\([^()]*\)', head):
                for name in self._wanted.intersection(_WORD.findall(line)):
                    self._bodies[name].append((path, line))
            head = re.sub(r'(?m)^[A-Z][A-Z0-9_]+\s*\([^()]*\)\s*$', '', head)
        if body:
            name = re.search(r'([A-Za-z_]\w*)\s*\(', head)
            # What chooses by the operation; the operations speak for it.
            if name and name.group(1) == 'check_owner':
                self._bodies['owner'].append((path, body))
            elif name and name.group(1) != 'perform':
                self._bodies[name.group(1)].append((path, head + body))

    def _reached(self, name, path):
        """Bodies that a name stands for, seen from a file: those of its own,
        or of what it includes. Elsewhere one source alone must have it."""
        bodies = self._bodies.get(name, ())
        if not path:
            return bodies
        stems = set(_stem(where) for where, _ in bodies)
        seen = [body for body in bodies if _stem(body[0]) == _stem(path)] or [
            body for body in bodies if _stem(body[0]) in self._seen_by(path)]
        return seen or (bodies if len(stems) == 1 else ())

    def _seen_by(self, path):
        """Stems of what a file includes, and of what that includes."""
        if path not in self._sight:
            seen = set()
            waiting = list(self._included.get(path, ()))
            while waiting:
                stem = waiting.pop()
                if stem not in seen:
                    seen.add(stem)
                    waiting.extend(self._headers.get(stem, ()))
            self._sight[path] = seen
        return self._sight[path]

    def _look(self, where, text):
        """Statuses in a body, and the bodies that it goes on to."""
        key = where, text
        if key not in self._looked:
            called = set(name for group in _CALLED.findall(text)
                         for name in group if name)
            called |= self._wanted.intersection(_WORD.findall(text))
            self._looked[key] = (
                frozenset(_STATUS.findall(text)) - _FINE,
                [body for name in called
                 for body in self._reached(name, where)])
        return self._looked[key]

    def statuses(self, name):
        """Names of the statuses, sorted; those that tell success left out."""
        waiting = list(self._reached(name, ''))
        seen, found = set(waiting), set()
        while waiting:
            statuses, further = self._look(*waiting.pop())
            found |= statuses
            fresh = set(further) - seen
            seen |= fresh
            waiting.extend(fresh)
        return sorted(found)
