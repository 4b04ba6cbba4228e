"""Looks at the reference in a real browser, as a person would from a file.

usage: browse.py FOLDER

A browser without a window is steered over its driver's own protocol. Exits
with a message when something is not as a person would want it.
"""

import json
import os
import subprocess
import sys
import time
import urllib2

ELEMENT = 'element-6066-11e4-a52e-4f735466cecf'  # the key of the protocol
OPTIONS = ['--headless=new', '--no-sandbox', '--disable-gpu',
           '--disable-dev-shm-usage']


class Browser(object):
    """A session of the driver, which runs as a child."""

    def __enter__(self):
        self.driver = subprocess.Popen(
            ['chromedriver', '--port=0'], stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT)
        line = ''
        while 'on port' not in line or 'started' not in line:
            line = self.driver.stdout.readline()
            if not line:
                sys.exit('the driver of the browser does not start')
        self.base = 'http://127.0.0.1:%s/session' % line.split(
            'port ')[1].strip().rstrip('.')
        self.base += '/' + self.ask('', {'capabilities': {'alwaysMatch': {
            'goog:chromeOptions': {'args': OPTIONS}}}})['sessionId']
        return self

    def __exit__(self, *_):
        try:
            self.ask('', None, 'DELETE')
        finally:
            self.driver.terminate()
            self.driver.wait()

    def ask(self, path, body=None, method=None):
        request = urllib2.Request(
            self.base + path, None if body is None else json.dumps(body),
            {'Content-Type': 'application/json'})
        if method:
            request.get_method = lambda: method
        try:
            answer = urllib2.urlopen(request, timeout=120)
        except urllib2.HTTPError as error:
            sys.exit('%s: %s' % (path, error.read()))
        return json.load(answer)['value']

    def open(self, url):
        self.ask('/url', {'url': url})

    def element(self, selector):
        return '/element/' + self.ask('/element', {
            'using': 'css selector', 'value': selector})[ELEMENT]

    def run(self, script):
        return self.ask('/execute/sync', {'script': script, 'args': []})

    def wait_for(self, script, what):
        """The value of the script, once it is something."""
        end = time.time() + 60
        while time.time() < end:
            value = self.run(script)
            if value:
                return value
            time.sleep(0.1)
        sys.exit('in vain: ' + what)


HITS = "return [...document.querySelectorAll('#found a')].map(a => a.text)"
SCRIPTS = "return document.querySelectorAll('script').length"
# Where the page stands: its heading, and the place that the address names.
PLACE = ("const place = document.querySelector(':target');"
         "return place && [document.title, place.id, "
         "place.getBoundingClientRect().top < innerHeight]")


def expect(found, wanted, what):
    if found != wanted:
        sys.exit('%s: %r, not %r' % (what, found, wanted))


def look(browser, folder):
    browser.open('file://%s/index.html' % folder)
    expect(browser.run(SCRIPTS), 1, 'scripts before the box is used')
    box = browser.element('#search')
    browser.ask(box + '/value', {'text': 'vlan gport'})
    hits = browser.wait_for('const hits = (() => {%s})(); return hits[0] == '
                            '"bcm_vlan_gport_add" && hits' % HITS,
                            'bcm_vlan_gport_add first for vlan gport')
    expect(browser.run(SCRIPTS), 2, 'scripts after it')
    spent = browser.run(
        "const box = document.getElementById('search');"
        "const begin = performance.now();"
        "box.dispatchEvent(new Event('input'));"
        "return performance.now() - begin")
    browser.ask(browser.element('#found a') + '/click', {})
    expect(browser.wait_for(PLACE, 'the place of a hit'),
           ['bcm_vlan', 'bcm_vlan_gport_add', True], 'a hit leads')
    # From a function to the structure that it takes, and on to who takes it.
    browser.open('file://%s/bcm_l2.html#bcm_l2_addr_add' % folder)
    browser.ask(browser.element('#bcm_l2_addr_add td a') + '/click', {})
    expect(browser.wait_for(PLACE, 'the place of a structure'),
           ['bcm_l2_types', 'bcm_l2_addr_t', True], 'a type leads')
    for words, first in (('', None), ('no such thing', None),
                         ('e_unit', 'BCM_E_UNIT'), ('CHECK', 'check')):
        browser.run("const box = document.getElementById('search');"
                    "box.focus(); box.value = '%s';"
                    "box.dispatchEvent(new Event('input'))" % words)
        if first:
            browser.wait_for('return (() => {%s})()[0] == "%s"'
                             % (HITS, first), '%s for %s' % (first, words))
        else:
            expect(browser.run(HITS), [], 'hits for %r' % words)
    print ('searched and followed links; %d hits for vlan gport, shown in '
           '%.0f ms' % (len(hits), spent))


if __name__ == '__main__':
    with Browser() as chromium:
        look(chromium, os.path.abspath(sys.argv[1]))
