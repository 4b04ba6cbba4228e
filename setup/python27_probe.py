"""Prints what an interpreter says of itself, one shell assignment a line.

Run by any `python` that a machine happens to have, so it keeps to what Python 2
and 3 both understand. Says nothing, with status 1, when this is not a Python 2.7
that extension modules can be built for.
"""
import os
import sys
import sysconfig


def first_existing(folders, name):
    """The path of the first file of that name, or an empty text."""
    for folder in folders:
        path = os.path.join(folder or '', name or '')
        if folder and name and os.path.isfile(path):
            return path
    return ''


def main():
    if sys.version_info[:2] != (2, 7) or not sys.executable:
        return 1
    var = sysconfig.get_config_var
    header = first_existing([var('INCLUDEPY')], 'Python.h')
    if not header:
        return 1
    libdir = var('LIBDIR') or ''
    library = first_existing(
        [os.path.join(libdir, var('MULTIARCH') or ''), libdir], var('LDLIBRARY'))
    print("found_executable='%s'" % os.path.realpath(sys.executable))
    print("found_include='%s'" % os.path.dirname(header))
    print("found_library='%s'" % library)
    print("found_shared='%d'" % bool(var('Py_ENABLE_SHARED')))
    print("found_debug='%d'" % hasattr(sys, 'gettotalrefcount'))
    return 0


if __name__ == '__main__':
    sys.exit(main())
