"""The reference is whole: each name has its place, each link leads somewhere,
and what it says of statuses is what calls answer."""

import json
import os
import re
import shutil
import sys
import tempfile
import unittest

import OmbraSdkV2Helper as sdk
import _OmbraSdkV2Helper as native
from proxy_support import run_child

# Where a callback's answer is the function's.
CALLS_BACK = re.compile('traverse|iterate|^bcm_tx_cpu_tunnel$')

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.join(HERE, '..', '..', '..')
BUILD = os.environ['OMBRA_BUILD']


@unittest.skipIf(hasattr(sys, 'gettotalrefcount'),
                 'the reference is written in a release tree')
class ReferenceTest(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        import reference
        cls.folder = tempfile.mkdtemp()
        cls.reference = reference.Reference(ROOT, BUILD)
        cls.reference.write(cls.folder)
        cls.pages = {}
        for name in os.listdir(cls.folder):
            if name.endswith('.html'):
                with open(os.path.join(cls.folder, name)) as page:
                    cls.pages[name] = page.read()
        cls.ids = dict((name, re.findall(r' id="([^"]*)"', text))
                       for name, text in cls.pages.iteritems())

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def test_every_link_leads_somewhere(self):
        count = 0
        for name, text in self.pages.iteritems():
            self.assertEqual(len(self.ids[name]), len(set(self.ids[name])),
                             name)
            for link in re.findall(r'(?:href|src)="([^"]*)"', text):
                page, _, anchor = link.partition('#')
                self.assertTrue(
                    os.path.exists(os.path.join(self.folder, page)), link)
                if anchor:
                    self.assertIn(anchor, self.ids[page or name], link)
                count += 1
        self.assertGreater(count, 50000)

    def test_every_name_has_its_place(self):
        everywhere = set(one for ids in self.ids.values() for one in ids)
        wanted = set(row['name'] for row in self.reference.model['rows'])
        wanted.update(name for name, value in vars(native).iteritems()
                      if name[:2] != '__' and name != 'cvar')
        wanted.update(name for name in sdk.__all__ if name != 'cvar')
        wanted.update(re.findall(r'\w+', str(sdk.cvar)))
        self.assertEqual(sorted(wanted - everywhere), [])
        self.assertGreater(len(wanted), 18000)

    def test_the_search_knows_every_name(self):
        with open(os.path.join(self.folder, 'search_index.js')) as script:
            text = script.read()
        self.assertLess(len(text), 1.5e6)
        found = set()
        for page, _, names, _ in json.loads(text[len('ombraIndex('):-3]):
            names = names.split(' ')
            self.assertLessEqual(set(names), set(self.ids[page + '.html']))
            found.update(names)
        missing = set(row['name'] for row in self.reference.model['rows'])
        self.assertEqual(missing - found, set())

    def test_no_page_is_empty_and_no_intro_cut(self):
        self.assertGreater(len(self.pages), 120)
        for name, text in self.pages.iteritems():
            intro = re.search(r'<p class="intro">(.*?)</p>', text).group(1)
            self.assertRegexpMatches(intro, r'^[A-Z].*[\w)]\.$', name)
            body = text[text.index('</h1>'):]
            self.assertRegexpMatches(body, '<section|<td>', name)
        for name, part in (
                ('bcm_field', '[status, group]'),
                ('api_exported', 'beside its entry.'),
                ('bcm_vlan', 'or (status, None, None)'),
                ('bcm_l2', 'traverse</a>(<a href="bcm_l2.html#bcm_l2_traverse'
                           '">bcm_l2_traverse</a>, unit, visit)'),
                ('bcm_port', "enable = <a href=\"proxy.html#box\">box</a>"
                             "('int')"),
                ('variables', 'always -1; not written')):
            self.assertIn(part, self.pages[name + '.html'])

    def test_calls_answer_with_what_stands_there(self):
        output, _ = run_child(os.path.join(HERE, 'statuses_seen.py'),
                              os.path.join(BUILD, 'made', 'model.json'))
        seen = json.loads(output[output.rindex('\nseen:') + 6:])
        names = dict((value, name) for name, value in
                     self.reference.model['install']
                     if re.match('BCM_E_', name))
        wrong = []
        for row in self.reference.functions:
            listed = self.reference.statuses.statuses(
                self.reference.native_name(row))
            wrong += ['%s: %s' % (row['name'], names.get(status, status))
                      for status in seen.get(row['name'], ())
                      if names.get(status) not in listed and not
                      CALLS_BACK.search(row['name'])]
        self.assertEqual(wrong, [])
        self.assertGreater(len(seen), 3000)


if __name__ == '__main__':
    unittest.main()
