"""CODATA figures in a reference file, checked against NIST's fixed-column listing: every
figure that an entry prints for a listed quantity, to its last printed digit, with its
uncertainty. The map names, for each Key, the listed quantities its Value prints, in order.
"""

import re
from decimal import Decimal, ROUND_DOWN, ROUND_HALF_EVEN, ROUND_HALF_UP, localcontext

PI = Decimal('3.14159265358979323846264338327950288419716939937510')

# A printed figure: 1,079,252,848.8 or 6.67430(15) x 10^-11 or 1.054571817... x 10^-34
NUMBER = re.compile(r'(?<![\w.\[^])(-?\d[\d,]*(?:\.\d+)?)(\(\d+\))?(\.\.\.)?(?: x 10\^(-?\d+))?')


class Listed:
    """One quantity of NIST's listing: value, uncertainty (None when exact), cut short."""

    def __init__(self, value, uncertainty, cut):
        self.value = value
        self.uncertainty = uncertainty
        self.cut = cut


def read_listing(path):
    """NIST's fixed-column ASCII listing: name in columns 1-60, then value, uncertainty."""
    listing = {}
    with open(path, encoding='ascii') as f:
        for line in f:
            line = line.rstrip('\n')
            if len(line) < 61 or line[0] in ' -' or not line[60:].strip():
                continue
            name = line[:60].strip()
            value = line[60:85].strip()
            uncertainty = line[85:110].strip()
            try:
                number = Decimal(value.replace(' ', '').replace('...', '').replace('e', 'E'))
                unc = None if uncertainty == '(exact)' else Decimal(uncertainty.replace(' ', '').replace('e', 'E'))
            except ArithmeticError:
                continue
            listing[name] = Listed(number, unc, value.endswith('...') or '...' in value)
    return listing


def read_codata_map(path):
    """Key -> list of items, from lines "Key<TAB>item | item"; '#' starts a comment line."""
    entries = {}
    with open(path, encoding='ascii') as f:
        for n, line in enumerate(f, 1):
            line = line.rstrip('\n')
            if not line.strip() or line.startswith('#'):
                continue
            if '\t' not in line:
                raise ValueError('%s:%d: no tab between Key and items' % (path, n))
            key, items = line.split('\t', 1)
            entries[key] = [i.strip() for i in items.split(' | ') if i.strip()]
    return entries


class Printed:
    """A figure as it stands in a Value."""

    def __init__(self, match):
        self.start = match.start()
        self.text = match.group(0)
        digits = match.group(1).replace(',', '')
        scale = Decimal(1).scaleb(int(match.group(4))) if match.group(4) else Decimal(1)
        self.value = Decimal(digits) * scale
        self.place = Decimal(1).scaleb(Decimal(digits).as_tuple().exponent) * scale
        self.uncertainty = Decimal(match.group(2)[1:-1]) * self.place if match.group(2) else None
        self.cut = bool(match.group(3))

    @property
    def is_constant(self):
        return self.uncertainty is not None or self.cut


def expected(item, listing):
    """(value, uncertainty or None, cut) that an item of the map stands for."""
    if '{' in item:
        names = re.findall(r'\{([^}]*)\}', item)
        for name in names:
            if name not in listing:
                raise KeyError(name)
        expr = re.sub(r'\{([^}]*)\}', lambda m: '_v[%d]' % names.index(m.group(1)), item)
        if re.sub(r'_v\[\d+\]|\bpi\b|[\d.eE+\-*/() ]', '', expr):
            raise ValueError('bad expression')
        expr = re.sub(r'(?<![\w\[])(\d+(?:\.\d+)?(?:[eE][+-]?\d+)?)', r"_D('\1')", expr)
        with localcontext() as ctx:
            ctx.prec = 40
            value = eval(expr, {'__builtins__': {}}, {'_v': [listing[n].value for n in names], '_D': Decimal, 'pi': PI})
        # A product, quotient or inverse of one measured quantity keeps its relative uncertainty.
        unc = None
        measured = [n for n in names if listing[n].uncertainty is not None]
        if len(set(names)) == 1 and measured:
            q = listing[measured[0]]
            unc = abs(q.uncertainty / q.value * value)
        return value, unc, any(listing[n].cut for n in names), True, None
    factor = Decimal(1)
    name = item
    m = re.match(r'(.*?)\s*\*\s*(-?[\d.]+(?:[eE][+-]?\d+)?)$', item)
    if m:
        name, factor = m.group(1), Decimal(m.group(2))
    q = listing[name]
    unc = None if q.uncertainty is None else abs(q.uncertainty * factor)
    return q.value * factor, unc, q.cut, False, abs(Decimal(1).scaleb(q.value.as_tuple().exponent) * factor)


def agrees(printed, want):
    value, unc, cut, derived, listed_place = want
    place = printed.place
    if len(printed.value.normalize().as_tuple().digits) < 3 and printed.value != value:
        return False  # "c^2" or "2 protons" is no rounded constant
    with localcontext() as ctx:
        ctx.prec = 60
        if printed.cut:
            if unc is not None:
                return False
            return printed.value == value.quantize(place, rounding=ROUND_DOWN)
        if cut and not derived and place <= listed_place:
            return False  # as many digits as the listing's "..." figure: they must say "..." too
        if printed.value not in (value.quantize(place, rounding=ROUND_HALF_EVEN),
                                 value.quantize(place, rounding=ROUND_HALF_UP)):
            return False
        if printed.uncertainty is not None:
            if unc is None:
                return False
            return printed.uncertainty == unc.quantize(place, rounding=ROUND_HALF_UP)
        return True


def check_codata(checker, listing, cmap):
    seen = set()
    for index, key, value in checker.entries:
        if key is None or value is None or not re.search(r'CODATA (?:19|20)\d\d', value):
            continue  # only the adjustments of the constants (CODATA 2022, ...) are checked
        where = 'Category %d (Key "%s")' % (index, key)
        if key not in cmap:
            checker.error('%s: cites CODATA but has no line in the CODATA map' % where)
            continue
        seen.add(key)
        text = value.split('Source:')[0]
        figures = [Printed(m) for m in NUMBER.finditer(text)]
        used = set()
        pos = 0
        first = None
        for item in cmap[key]:
            try:
                want = expected(item, listing)
            except (KeyError, ValueError, ArithmeticError, SyntaxError, ZeroDivisionError) as exc:
                checker.error('%s: map item "%s" cannot be evaluated (%s)' % (where, item, exc))
                continue
            found = None
            for i in range(pos, len(figures)):
                if i not in used and agrees(figures[i], want):
                    found = i
                    break
            if found is None:
                checker.error('%s: "%s" = %s is not printed (to the last printed digit) after figure %d'
                              % (where, item, want[0].normalize(), pos))
                continue
            used.add(found)
            pos = found + 1
            if item is cmap[key][0]:
                first = want
        for i, fig in enumerate(figures):
            if fig.is_constant and i not in used and not re.match(r'.*\+/- $', text[max(0, fig.start - 4):fig.start]):
                checker.error('%s: %s has an uncertainty or "..." but no CODATA map item' % (where, fig.text))
        for m in re.finditer(r'Standard uncertainty \+/- (\S+(?: x 10\^-?\d+)?)', text):
            if first is None:
                continue  # the first figure is wrong already, and said so
            stated = Printed(NUMBER.match(m.group(1)))
            with localcontext() as ctx:
                ctx.prec = 60
                right = first[1] is not None and stated.value == first[1].quantize(stated.place, rounding=ROUND_HALF_UP)
            if not right:
                checker.error('%s: "Standard uncertainty +/- %s" is not the uncertainty of its first figure'
                              % (where, m.group(1)))
    for key in cmap:
        if key not in seen:
            checker.error('CODATA map names Key "%s", which no entry citing CODATA has' % key)
