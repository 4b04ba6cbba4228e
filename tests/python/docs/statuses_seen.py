"""Calls each function that answers with a status, on a unit and on none, and
prints the refusals that came.

usage: statuses_seen.py MODEL.json
"""

import json
import os
import shutil
import sys
import tempfile

import OmbraSdkV2Helper as sdk
import every_function
from _OmbraSdkV2Status import is_status, result_type


def refusals(row, keep):
    """The negative statuses of a few calls."""
    seen = set()
    for change in (None, 99, -1):
        made = every_function.arguments(row, keep)
        keep.append(made)
        for place, argument in enumerate(row['arguments']):
            if change is not None and argument['kind'] == 'signed-32' and (
                    (argument['name'] == 'unit') == (change == 99)):
                made[place] = change
        try:
            sdk.check(getattr(sdk, row['name'])(*made))
        except sdk.SdkError as refusal:
            seen.add(refusal.status)
        except (OverflowError, TypeError, ValueError):
            pass
    return sorted(seen)


def main(model):
    with open(model) as stream:
        rows = [row for row in json.load(stream)['rows']
                if row['role'] == 'function']
    folder = tempfile.mkdtemp()
    os.chdir(folder)  # for the functions that write files
    every_function.start()
    keep, seen = [], {}
    for row in rows:
        function = getattr(sdk, row['name'])
        if is_status(function) and result_type(function) == 'int':
            seen[row['name']] = refusals(row, keep)
        if any(word in row['name'] for word in every_function.ENDING):
            every_function.revive()
    shutil.rmtree(folder)
    print '\nseen:' + json.dumps(seen)


if __name__ == '__main__':
    main(sys.argv[1])
