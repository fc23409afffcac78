#!/usr/bin/env python3
"""Check a reference data file (physicaldata.txt, AstrDataXML.txt, Mathformulas.txt).

Usage:
    check_refdata.py FILE [--expect "TERM=>SUBSTRING"]... [--summary] [--quiet]
                          [--adds "PRIMARY=>ROW"]... [--codata LISTING --codata-map MAP]
                          [--also FILE2 --agree "TERM=>REGEX"]...

Checks that the file
  * is ASCII only (no byte above 127, no control characters but tab, CR and LF),
  * is well-formed XML whose first node is the root element (no comment,
    processing instruction or document type before it; an XML declaration may stand there),
  * has at least one Category child of the root,
  * gives every Category a first Key and a first Value whose first child is plain,
    non-empty text (no element, comment or CDATA section as first child, and no child
    elements at all),
  * has Keys that are one line of words separated by single blanks, with no ':' or ';'
    in the first four words (those words become the pick lists and "Optional Adds"), and
    no two Keys that offer one and the same "Optional Adds" row.

--expect "TERM=>SUBSTRING" runs the Smart-mode search for TERM (the term is reduced as the
application's SmartParse does; then an entry is a hit when every blank-separated word of
the term occurs in its Key, letter case ignored, or the whole term does) and requires at
least one hit whose Value contains SUBSTRING (letter case ignored). An empty SUBSTRING
only requires a hit. The option may be given many times.

--adds "PRIMARY=>ROW" requires that the "Optional Adds" pop-up of the primary term PRIMARY
offers ROW exactly, trailing blanks included: words 2 to 4 of a cleaned Key, each followed by
a blank but the last. "--adds=element=>iron  " holds for the Key "Element Iron" alone; the
Search tab then leaves "element iron  " in the term field, and with shift held searches for
the row's text alone (give that search as an --expect with the row as its term).

--agree "TERM=>REGEX" searches TERM in FILE and in the file named by --also, takes group 1 of
REGEX from the Value of every hit, and requires one value among them all: one fact, one
figure, in every entry and file that states it. "sun gravity=>([0-9.]+) (?:g|times)" fails
when one entry says 27.9 g and another 28.0 times Earth's. A hit that lacks REGEX is ignored,
but at least two figures must be found.

--codata LISTING --codata-map MAP checks the file's CODATA figures against NIST's fixed-column
listing. MAP has one line per entry whose Value cites a CODATA adjustment ("CODATA 2022"): the Key, a tab, and the listing
quantities that the Value prints, in the order printed, separated by " | ". An item is a
quantity's name, optionally followed by "* FACTOR" (printed = listed times FACTOR, for another
unit or sign), or an expression such as "1 / (4 * pi * {vacuum electric permittivity})", which
keeps the relative uncertainty of the one measured quantity that it names. Each
item must be printed, after the one before it, to the last printed digit: rounded, or cut off
when the printed number ends in "..."; a printed uncertainty "(NN)" must be the listed one in
the same last digits, and a "Standard uncertainty +/- U" line must give the first item's. Every
number in such a Value that carries an uncertainty or ends in "..." must belong to an item.

--summary prints the number of entries under each primary term (first word of the Key,
lower case, as the pick list shows it).

Exit status: 0 when every check passes, 1 when a check fails, 2 on a usage error.
Uses the Python standard library only.
"""

import re
import sys
import xml.dom.minidom
from xml.parsers.expat import ExpatError

from codata_figures import check_codata, read_codata_map, read_listing

MAX_SHOWN = 40


def smart_parse(term):
    """The reduction of a search term in Smart mode."""
    for pattern in (r'^the ', r'^a ', r'^an '):
        term = re.sub(pattern, '', term, count=1, flags=re.IGNORECASE)
    for word in (' the ', ' a ', ' an ', ' of ', ' for '):
        term = re.sub(re.escape(word), ' ', term, flags=re.IGNORECASE)
    for run in (5, 4, 3, 2):
        term = term.replace(' ' * run, ' ')
    return term.strip(' \t')


def clean(text):
    """The normaliser that builds the primary term lists."""
    text = text.lower().lstrip()
    for word in (' of ', ' the ', ' from ', ' for ', ' a '):
        text = text.replace(word, ' ')
    return text.replace('   ', ' ').replace('  ', ' ')


def smart_hit(key, term):
    k = key.lower()
    t = term.lower()
    if t and t in k:
        return True
    words = t.split(' ') if t else []
    return all(w in k for w in words)


def first_element(node, name):
    for child in node.childNodes:
        if child.nodeType == child.ELEMENT_NODE and child.tagName == name:
            return child
    return None


class Checker:
    def __init__(self, path):
        self.path = path
        self.errors = []
        self.entries = []  # (index, key, value)

    def error(self, message):
        self.errors.append(message)

    def run(self):
        try:
            with open(self.path, 'rb') as f:
                raw = f.read()
        except OSError as exc:
            self.error('cannot read file: %s' % exc)
            return
        self.check_bytes(raw)
        try:
            doc = xml.dom.minidom.parseString(raw)
        except ExpatError as exc:
            self.error('not well-formed XML: %s' % exc)
            return
        self.check_document(doc)

    def check_bytes(self, raw):
        line = 1
        bad = 0
        for i, b in enumerate(raw):
            if b == 10:
                line += 1
            if b > 127 or (b < 32 and b not in (9, 10, 13)):
                bad += 1
                if bad <= 10:
                    self.error('line %d: byte 0x%02X at offset %d is not printable ASCII' % (line, b, i))
        if bad > 10:
            self.error('%d further bytes outside printable ASCII' % (bad - 10))

    def check_document(self, doc):
        nodes = doc.childNodes
        if not nodes:
            self.error('document has no nodes')
            return
        first = nodes[0]
        if first.nodeType != first.ELEMENT_NODE:
            kinds = {first.COMMENT_NODE: 'a comment', first.PROCESSING_INSTRUCTION_NODE: 'a processing instruction',
                     first.DOCUMENT_TYPE_NODE: 'a document type declaration'}
            self.error('first node of the document is %s, not the root element' % kinds.get(first.nodeType, 'not an element'))
        root = doc.documentElement
        cats = [c for c in root.childNodes if c.nodeType == c.ELEMENT_NODE and c.tagName == 'Category']
        if not cats:
            self.error('root element <%s> has no Category' % root.tagName)
            return
        for index, cat in enumerate(cats):
            key = self.check_part(index, cat, 'Key')
            value = self.check_part(index, cat, 'Value')
            if key is not None:
                self.check_key(index, key)
            self.entries.append((index, key, value))
        # Two Keys that offer one pop-up row cannot be told apart on the Search tab.
        for primary, rows in self.adds().items():
            for row in sorted(set(r for r in rows if rows.count(r) > 1)):
                self.error('the pop-up of "%s" offers "%s" more than once: the Keys differ only after '
                           'their fourth word' % (primary, row))

    def check_part(self, index, cat, name):
        where = 'Category %d' % index
        el = first_element(cat, name)
        if el is None:
            self.error('%s: no <%s>' % (where, name))
            return None
        if not el.childNodes:
            self.error('%s: <%s> is empty' % (where, name))
            return None
        child = el.firstChild
        if child.nodeType != child.TEXT_NODE:
            self.error('%s: <%s> does not begin with plain text' % (where, name))
            return None
        if any(c.nodeType != c.TEXT_NODE for c in el.childNodes):
            self.error('%s: <%s> holds more than plain text' % (where, name))
        text = child.data
        if not text.strip():
            self.error('%s: <%s> text is blank' % (where, name))
            return None
        return text

    def check_key(self, index, key):
        where = 'Category %d (Key "%s")' % (index, key)
        if key != key.strip(' '):
            self.error('%s: Key has a leading or trailing blank' % where)
        if re.search(r'[\t\r\n]', key):
            self.error('%s: Key holds a tab or line break' % where)
        if '  ' in key:
            self.error('%s: Key words are separated by more than one blank' % where)
        words = clean(key).split(' ')
        raw_words = key.split(' ')
        for w in raw_words[:4] + words[:4]:
            if ':' in w or ';' in w:
                self.error("%s: ':' or ';' in the first four words" % where)
                break

    def expect(self, wanted):
        if '=>' not in wanted:
            self.error('--expect "%s": missing "=>"' % wanted)
            return None
        term, want = wanted.split('=>', 1)
        reduced = smart_parse(term)
        hits = [(i, k, v) for (i, k, v) in self.entries if k is not None and smart_hit(k, reduced)]
        good = [h for h in hits if h[2] is not None and want.lower() in h[2].lower()]
        if not hits:
            self.error('--expect "%s": no entry found for "%s"' % (wanted, reduced))
        elif not good:
            self.error('--expect "%s": %d hits for "%s", none with "%s" in its Value' % (wanted, len(hits), reduced, want))
        return len(hits), len(good)

    def adds(self):
        """Primary term -> pop-up rows, built as the Search tab builds its key summaries."""
        keys = sorted(clean(k) for _, k, _ in self.entries if k is not None)
        rows = {}
        for key in keys:
            fields = key.split(' ')
            words = [fields[n] if n < len(fields) else '' for n in (1, 2, 3)]
            rows.setdefault(fields[0], []).append(' '.join(words))
        return rows

    def expect_adds(self, wanted):
        if '=>' not in wanted:
            self.error('--adds "%s": missing "=>"' % wanted)
            return
        primary, row = wanted.split('=>', 1)
        rows = self.adds().get(primary.lower())
        if rows is None:
            self.error('--adds "%s": no primary term "%s"' % (wanted, primary.lower()))
        elif row not in rows:
            near = [r for r in rows if r.split(' ')[0] == row.split(' ')[0]]
            self.error('--adds "%s": the pop-up of "%s" has no row "%s"%s'
                       % (wanted, primary.lower(), row, ' (it has "%s")' % '", "'.join(near) if near else ''))

    def agree(self, wanted, other):
        if '=>' not in wanted:
            self.error('--agree "%s": missing "=>"' % wanted)
            return
        term, pattern = wanted.split('=>', 1)
        reduced = smart_parse(term)
        found = []
        for checker in [self] + ([other] if other else []):
            for index, key, value in checker.entries:
                if key is None or value is None or not smart_hit(key, reduced):
                    continue
                for m in re.finditer(pattern, value):
                    found.append((m.group(1), '%s entry %d' % (checker.path.split('/')[-1], index)))
        figures = sorted(set(f for f, _ in found))
        if len(found) < 2:
            self.error('--agree "%s": fewer than two figures found' % wanted)
        elif len(figures) > 1:
            self.error('--agree "%s": %s' % (wanted, '; '.join('%s in %s' % f for f in found)))

    def summary(self):
        counts = {}
        for _, key, _ in self.entries:
            if key is None:
                continue
            term = clean(key).split(' ')[0]
            counts[term] = counts.get(term, 0) + 1
        return counts


def main(argv):
    args = argv[1:]
    path = None
    expects = []
    adds = []
    agrees = []
    also = None
    want_summary = False
    quiet = False
    codata = None
    codata_map = None
    i = 0
    while i < len(args):
        a = args[i]
        if a == '--expect':
            if i + 1 >= len(args):
                print('usage: --expect needs "TERM=>SUBSTRING"', file=sys.stderr)
                return 2
            expects.append(args[i + 1])
            i += 2
            continue
        if a == '--also':
            if i + 1 >= len(args):
                print('usage: --also needs a file', file=sys.stderr)
                return 2
            also = args[i + 1]
            i += 2
            continue
        if a in ('--codata', '--codata-map'):
            if i + 1 >= len(args):
                print('usage: %s needs a file' % a, file=sys.stderr)
                return 2
            if a == '--codata':
                codata = args[i + 1]
            else:
                codata_map = args[i + 1]
            i += 2
            continue
        if a.startswith('--expect='):
            expects.append(a[len('--expect='):])
        elif a.startswith('--adds='):
            adds.append(a[len('--adds='):])
        elif a.startswith('--agree='):
            agrees.append(a[len('--agree='):])
        elif a == '--summary':
            want_summary = True
        elif a == '--quiet':
            quiet = True
        elif a in ('-h', '--help'):
            print(__doc__)
            return 0
        elif a.startswith('--'):
            print('unknown option %s' % a, file=sys.stderr)
            return 2
        elif path is None:
            path = a
        else:
            print('only one file may be given', file=sys.stderr)
            return 2
        i += 1
    if path is None:
        print(__doc__, file=sys.stderr)
        return 2

    if (codata is None) != (codata_map is None):
        print('--codata and --codata-map go together', file=sys.stderr)
        return 2

    checker = Checker(path)
    checker.run()
    if codata and checker.entries:
        try:
            check_codata(checker, read_listing(codata), read_codata_map(codata_map))
        except (OSError, ValueError) as exc:
            checker.error('CODATA check: %s' % exc)
    results = []
    if checker.entries:
        for wanted in expects:
            results.append((wanted, checker.expect(wanted)))
        for wanted in adds:
            checker.expect_adds(wanted)
        if agrees:
            other = None
            if also:
                other = Checker(also)
                other.run()
                for message in other.errors:
                    checker.error('%s: %s' % (also, message))
            for wanted in agrees:
                checker.agree(wanted, other)
    elif expects or adds or agrees:
        checker.error('no entries to search')

    if want_summary and checker.entries:
        counts = checker.summary()
        for term in sorted(counts):
            print('%6d  %s' % (counts[term], term))
        print('%6d  entries in all' % len(checker.entries))
    if not quiet:
        for wanted, r in results:
            if r:
                print('expect %-40s %d hits, %d with the text' % ('"%s"' % wanted, r[0], r[1]))
    for message in checker.errors[:MAX_SHOWN]:
        print('ERROR: ' + message, file=sys.stderr)
    if len(checker.errors) > MAX_SHOWN:
        print('ERROR: ... and %d more' % (len(checker.errors) - MAX_SHOWN), file=sys.stderr)
    if checker.errors:
        print('%s: FAILED (%d problems)' % (path, len(checker.errors)), file=sys.stderr)
        return 1
    if not quiet:
        print('%s: OK (%d entries)' % (path, len(checker.entries)))
    return 0


if __name__ == '__main__':
    sys.exit(main(sys.argv))
