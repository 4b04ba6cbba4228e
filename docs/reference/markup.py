"""HTML for the pages of the reference."""

import os

HEAD = '''<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>%(title)s</title>
<meta name="viewport" content="width=device-width">
<link rel="stylesheet" href="style.css"></head>
<body><header><a href="index.html">Reference</a>
<input id="search" type="search" autocomplete="off"
 placeholder="search: words of a name, as in vlan gport"></header>
<ol id="found"></ol>
<main><h1>%(title)s</h1><p class="intro">%(intro)s</p>
'''
FOOT = '</main><script src="search.js"></script></body></html>\n'


def escaped(text):
    return text.replace('&', '&amp;').replace('<', '&lt;').replace('>', '&gt;')


def code(html):
    return '<code>%s</code>' % html


def table(heads, lines):
    """A table; nothing where there are no lines."""
    if not lines:
        return ''
    return '<table><tr>%s</tr>\n%s</table>' % (
        ''.join('<th>%s</th>' % head for head in heads),
        ''.join('<tr>%s</tr>\n' % ''.join('<td>%s</td>' % cell
                                          for cell in line)
                for line in lines))


class Page(object):
    """A page that grows."""

    def __init__(self, name, title, intro):
        self.name = name
        self.title = title
        self.intro = intro
        self.parts = []

    def add(self, html):
        self.parts.append(html)

    def write(self, folder):
        with open(os.path.join(folder, self.name + '.html'), 'w') as page:
            page.write((HEAD % {
                'title': escaped(self.title), 'intro': escaped(self.intro)}
                + '\n'.join(self.parts) + FOOT).encode('utf-8'))
