"""How much there is: the numbers that the suites have to come to. They change
only with the declarations and the catalogue, and nowhere else."""

TOTALS = {
    'rows': 10791,
    'texts of arguments': 22729,
    'null references of arguments': 263,
    'null references in variables': 135,
    'texts of variables': 22,
    'docstrings with a result': 7002,
    'docstrings without': 3406,
    'constants': 7649,
    'types': 1016,
    'classes': 376,
    'fields': 2706,
    'registrations': 382,
    'variables': 26,
    'appended outputs': 10,
    'callback types': 110,
    'plain functions': 4226,
}
