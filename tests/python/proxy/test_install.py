"""What is installed: enough to import, and nothing that points back here."""

import distutils.spawn
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

import OmbraSdkV2Helper as sdk

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', '..')
BUILD = os.environ['OMBRA_BUILD']
CMAKE = os.environ.get('OMBRA_CMAKE')


@unittest.skipUnless(CMAKE, 'a debug tree installs nothing')
class InstallTest(unittest.TestCase):

    def setUp(self):
        self.stage = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.stage)

    def install(self, *options):
        """Installs below the stage; returns what is there, by name."""
        command = (CMAKE, '--install', BUILD, '--prefix', '/usr/local')
        subprocess.check_output(command + options,
                                env=dict(os.environ, DESTDIR=self.stage))
        found = {}
        for folder, _, names in os.walk(self.stage):
            for name in names:
                found[name] = os.path.join(folder, name)
        return found

    def test_the_whole_imports_from_where_it_is(self):
        found = self.install()
        environment = {
            'PYTHONPATH': os.path.dirname(found['OmbraSdkV2Helper.py']),
            'LD_LIBRARY_PATH': os.path.dirname(found['liblumo.so.0'])}
        output = subprocess.check_output(
            [sys.executable, '-c', 'import OmbraSdkV2Helper as sdk;'
             'print sdk.__file__, sdk.addOmbraDevice(0, 1, 0, 0),'
             'sdk.__version__'],
            cwd='/', env=environment)
        # Compiled already, under the place where it is going to be.
        self.assertEqual(output.split(),
                         [found['OmbraSdkV2Helper.pyc'], '0', sdk.__version__])
        with open(found['ombra-shell.1']) as manual:
            self.assertIn(sdk.__version__, manual.read())
        with open(found['OmbraSdkV2Helper.pyc'], 'rb') as compiled:
            self.assertNotIn(self.stage, compiled.read())

    def test_no_library_has_a_search_path(self):
        found = self.install()
        libraries = [path for path in found.values() if '.so' in path]
        self.assertEqual(len(libraries), 7)
        for path in libraries:
            output = subprocess.check_output(['readelf', '-d', path])
            self.assertNotIn('RUNPATH', output)
            self.assertNotIn('RPATH', output)

    def test_a_switch_can_take_the_module_alone(self):
        found = self.install('--component', 'module')
        self.assertFalse([name for name in found if name.startswith('lib')])
        self.assertEqual(
            sorted(name for name in found if not name.endswith('.pyc')),
            ['OmbraSdkV2Helper.py', 'OmbraSdkV2Helper.pyi', '_OmbraSdkV2Aids.py',
             '_OmbraSdkV2Classes.py', '_OmbraSdkV2Companion.so',
             '_OmbraSdkV2Guide.py', '_OmbraSdkV2Helper.so',
             '_OmbraSdkV2Manual.py', '_OmbraSdkV2Proxy.py',
             '_OmbraSdkV2Status.py'])

    def test_a_checkout_that_was_moved_is_configured_anew(self):
        old, new = (os.path.join(self.stage, name) for name in ('a', 'b'))
        shutil.copytree(os.path.join(ROOT, 'setup'), os.path.join(old, 'setup'))
        os.mkdir(os.path.join(old, 'build'))
        shutil.copy(os.path.join(BUILD, 'python27.env'),
                    os.path.join(old, 'build'))
        with open(os.path.join(old, 'CMakeLists.txt'), 'w') as lists:
            lists.write('cmake_minimum_required(VERSION 3.18)\n'
                        'project(moved NONE)\n')
        configure = ['setup/configure.sh', 'release']
        subprocess.check_output(configure, cwd=old, stderr=subprocess.STDOUT)
        os.rename(old, new)
        output = subprocess.check_output(configure, cwd=new,
                                         stderr=subprocess.STDOUT)
        self.assertIn('Configuring', output)
        self.assertEqual('', subprocess.check_output(
            configure, cwd=new, stderr=subprocess.STDOUT))

    def test_without_a_network_one_line_says_so(self):
        shutil.copytree(os.path.join(ROOT, 'setup'),
                        os.path.join(self.stage, 'setup'))
        for name in 'apt-get', 'dpkg-query':
            path = os.path.join(self.stage, name)
            with open(path, 'w') as stub:
                stub.write('#!/bin/sh\necho E: no >&2; exit 1\n')
            os.chmod(path, 0755)
        child = subprocess.Popen(
            ['setup/packages.sh', 'tidy'], cwd=self.stage,
            stderr=subprocess.PIPE,
            env=dict(os.environ, PATH=self.stage + ':' + os.environ['PATH']))
        lines = child.communicate()[1].splitlines()
        self.assertEqual((child.returncode, [
            line.split()[0] for line in lines if '==>' not in line]),
            (1, ['error:']))

    @unittest.skipUnless(distutils.spawn.find_executable('python3'),
                         'there is no Python 3 here')
    def test_another_python_is_told_which_one_serves(self):
        child = subprocess.Popen(
            ['python3', '-B', '-c', 'import OmbraSdkV2Helper'],
            stderr=subprocess.PIPE, cwd=os.path.dirname(sdk.__file__))
        self.assertIn('is for Python 2.7', child.communicate()[1])


if __name__ == '__main__':
    unittest.main()
