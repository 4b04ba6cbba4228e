"""What runs under callgrind. Each call of mark() makes it write the instructions since the last.

    count.py calls CALLS    every shape with every candidate, and the empty loop first
    count.py import NAME    the import of a module, and the first collection after it

Says on standard output what the counts between two marks belong to, a line each.
"""

import sys

from _ombra_floor import mark


def calls(number):
    import shapes
    found = shapes.candidates()
    shapes.run_empty(10)
    mark()
    shapes.run_empty(number)
    mark()
    print 'empty loop\t%d' % number
    for shape in shapes.SHAPES:
        for candidate in found:
            call = shapes.bound(shape, candidate)
            if call is None:
                continue
            count = shapes.number_of(shape, number)
            shapes.run(3, *call)
            mark()
            shapes.run(count, *call)
            mark()
            print '%s\t%s\t%d' % (shape[0], candidate[0], count)


def importing(name):
    mark()
    __import__(name)
    kept = [[] for _ in xrange(1000)]  # more than the collector lets pass
    mark()
    print name
    return kept


if __name__ == '__main__':
    if sys.argv[1] == 'calls':
        calls(int(sys.argv[2]))
    else:
        importing(sys.argv[2])
