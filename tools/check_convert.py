#!/usr/bin/env python3
"""Check the unit conversion table convert.txt.

Usage:
    check_convert.py [--file PATH] [--quiet]

PATH defaults to data/VLSupport/convert.txt under the repository that holds this script.

Format checks (what the loader and the conversion paths can cope with):
  * ASCII only, no control characters but tab, CR and LF;
  * well-formed XML whose very first node is the root element <Conversions>: no XML
    declaration, comment or processing instruction before it, no CDATA section anywhere;
  * every Category has a Name whose content is plain, non-empty text without ";";
  * every SubList holds plain, non-empty text (one text node: no child element or comment)
    with exactly one "->", something on both sides, no ";", ":" or blank (the answer's unit
    text is the part after "->", and the Convert tab splits units at blanks);
  * no label twice in a category, no category name twice (names compare without case);
  * "Number" and "Temperature" hold exactly the labels their fixed rules know, and no
    convert attribute (their arithmetic is built in);
  * every other row has convert="*NUMBER", "/NUMBER" or, for a reciprocal such as
    L/100km->mpg(US), "^-1*NUMBER", with NUMBER in the form the script lexer reads:
    digits, optional "." and digits, optional exponent such as e-19.

Factor checks:
  * every row a->b has its reverse b->a in the same category: a factor row's factors
    multiply to 1, a reciprocal row's reverse is the same reciprocal;
  * both sides of the label are units of UNITS below, an independent table of exact
    definitions in SI base units, and have the same dimension (a reciprocal row: opposite
    dimensions); no side uses a name in MISREADABLE;
  * NUMBER is the double nearest to the exact factor that the definitions give, so that
    every row agrees with every other to full double precision.

Prints the number of rows per category and in total. Exit status: 0 when every check
passes, 1 when a check fails, 2 on a usage error. Uses the Python standard library only.
"""

import os
import re
import sys
import xml.etree.ElementTree as ET

from unit_definitions import MISREADABLE, UNITS, UnitError, parse_units

REVERSE_TOLERANCE = 1e-15
MAX_SHOWN = 40

# The labels the built-in rules recognise; any other label in these two categories does nothing.
NUMBER_LABELS = [
    "Decimal(Integer)->Hex", "Hex->Decimal", "Decimal->Oct", "Oct->Decimal",
    "Decimal->Binary", "Binary->Decimal",
]
TEMPERATURE_LABELS = [
    "Fahrenheit(F)->C", "Celsius/Centigrade(C)->F", "Kelvin(K)->C", "C->K", "Rankine(R)->F",
    "F->R", "R->K", "K->R", "F->K", "K->F",
]
FIXED_RULES = {"Number": NUMBER_LABELS, "Temperature": TEMPERATURE_LABELS}

REQUIRED_CATEGORIES = [
    "Length", "Area", "Volume", "Capacity", "Mass", "Time", "Speed", "Acceleration", "Force",
    "Pressure", "Energy", "Power", "Density", "Angle", "Frequency", "Electric", "Data",
    "Fuel economy", "Number", "Temperature",
]

# Rows that the directions of the Convert tab walk the user through.
REQUIRED_ROWS = [("Power", "hp->W"), ("Time", "hr->s"), ("Area", "ft^2->m^2")]

NUMBER = r"[0-9]+(?:\.[0-9]+)?(?:[eE][+-]?[0-9]+)?"
FRAGMENT_RE = re.compile(rf"^(\*|/|\^-1\*)({NUMBER})$")


def relative(a, b):
    return abs(a - b) / max(abs(a), abs(b))


def repo_root():
    return os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def check_text(raw, fail):
    try:
        text = raw.decode("ascii")
    except UnicodeDecodeError as err:
        fail(f"byte {err.start}: not ASCII (0x{raw[err.start]:02x})")
        text = raw.decode("ascii", errors="replace")
    # Not splitlines(): it would swallow form feeds and the like as line ends.
    for n, line in enumerate(text.split("\n"), 1):
        for ch in line:
            if (ord(ch) < 32 and ch not in "\t\r") or ord(ch) == 127:
                fail(f"line {n}: control character 0x{ord(ch):02x}")
    if not text.startswith("<") or text.startswith("<?") or text.startswith("<!"):
        fail("the file must begin with the root element: no blank, XML declaration, comment "
             "or processing instruction before it")
    if "<![CDATA[" in text:
        fail("CDATA section: the loader reads only plain text nodes")
    return text


def plain_text(element):
    """The element's text if it is one plain text node, else None."""
    if len(element):  # child elements, comments or processing instructions
        return None
    return element.text


def check_file(path):
    problems = []

    def fail(message):
        problems.append(message)

    try:
        with open(path, "rb") as handle:
            raw = handle.read()
    except OSError as err:
        return [f"cannot read {path}: {err}"], []
    text = check_text(raw, fail)
    builder = ET.TreeBuilder(insert_comments=True, insert_pis=True)
    parser = ET.XMLParser(target=builder)
    try:
        parser.feed(text)
        root = parser.close()
    except ET.ParseError as err:
        fail(f"not well-formed XML: {err}")
        return problems, []
    if root.tag != "Conversions":
        fail(f"root element is <{root.tag}>, expected <Conversions>")

    counts = []
    seen_names = {}
    rows = {}  # category -> {label: (operator, number) or None}
    for c_index, category in enumerate(root.findall("Category"), 1):
        names = category.findall("Name")
        if not names:
            fail(f"Category {c_index}: no Name")
            continue
        name = plain_text(names[0])
        if not name or not name.strip():
            fail(f"Category {c_index}: Name is not plain, non-empty text")
            continue
        where = f"Category {name!r}"
        if ";" in name:
            fail(f"{where}: ';' in the name")
        if name.lower() in seen_names:
            fail(f"{where}: name used twice (names compare without case)")
        seen_names[name.lower()] = name
        sublists = category.findall("List/SubList")
        if not sublists:
            fail(f"{where}: no conversions")
        counts.append((name, len(sublists)))
        table = rows.setdefault(name, {})
        for s_index, sub in enumerate(sublists, 1):
            label = plain_text(sub)
            if not label:
                fail(f"{where}, row {s_index}: label is not plain, non-empty text")
                continue
            at = f"{where}, {label!r}"
            if label in table:
                fail(f"{at}: label twice; only the first row's fragment would ever be used")
                continue
            for bad in (";", ":"):
                if bad in label:
                    fail(f"{at}: {bad!r} in the label")
            if re.search(r"\s", label):
                fail(f"{at}: blank in the label")
            parts = label.split("->")
            if len(parts) != 2 or not parts[0] or not parts[1]:
                fail(f"{at}: a label is 'from->to' with one '->'")
                table[label] = None
                continue
            fragment = sub.get("convert")
            if name in FIXED_RULES:
                if fragment is not None:
                    fail(f"{at}: convert attribute on a row whose arithmetic is built in")
                table[label] = None
                continue
            if fragment is None:
                fail(f"{at}: no convert attribute")
                table[label] = None
                continue
            table[label] = parse_fragment(fragment, at, fail)

    for name, expected in FIXED_RULES.items():
        if name not in rows:
            continue
        got = list(rows[name])
        missing = [x for x in expected if x not in got]
        extra = [x for x in got if x not in expected]
        if missing:
            fail(f"Category {name!r}: missing {missing}")
        if extra:
            fail(f"Category {name!r}: labels the built-in rules do not know: {extra}")
    for name in REQUIRED_CATEGORIES:
        if name not in rows:
            fail(f"Category {name!r} is missing")
    for name, label in REQUIRED_ROWS:
        if label not in rows.get(name, {}):
            fail(f"Category {name!r}: row {label!r} is missing")

    for name, table in rows.items():
        if name in FIXED_RULES:
            continue
        for label, fragment in table.items():
            if fragment is not None:
                check_factor(name, label, fragment, table, fail)
    return problems, counts


def parse_fragment(fragment, at, fail):
    """(operator, number) of a fragment, or None after reporting what is wrong with it."""
    for bad in (";", ":"):
        if bad in fragment:
            fail(f"{at}: {bad!r} in the fragment {fragment!r}")
    match = FRAGMENT_RE.match(fragment)
    if not match:
        fail(f"{at}: fragment {fragment!r} is not '*NUMBER', '/NUMBER' or '^-1*NUMBER'")
        return None
    number = float(match.group(2))
    if number == 0 or number == float("inf"):
        fail(f"{at}: fragment {fragment!r} is zero or out of range")
        return None
    return match.group(1), number


def check_factor(name, label, fragment, table, fail):
    at = f"Category {name!r}, {label!r}"
    op, number = fragment
    source, target = label.split("->")
    reverse = f"{target}->{source}"
    if reverse not in table:
        fail(f"{at}: reverse row {reverse!r} is missing")
    elif table[reverse] is not None:
        back_op, back = table[reverse]
        if (op == "^-1*") != (back_op == "^-1*"):
            fail(f"{at}: a reciprocal row and its reverse {reverse!r} are reciprocals alike")
        elif op == "^-1*" and number != back:
            fail(f"{at}: constant {number!r} differs from that of {reverse!r} ({back!r})")
        elif op != "^-1*":
            product = (number if op == "*" else 1 / number) * (back if back_op == "*" else 1 / back)
            if relative(product, 1.0) > REVERSE_TOLERANCE:
                fail(f"{at}: factor {number!r} and that of {reverse!r} ({back!r}) "
                     "do not multiply to 1")
    try:
        a, b = parse_units(source), parse_units(target)
    except UnitError as err:
        fail(f"{at}: {err}")
        return
    if op == "^-1*":
        # y = K / x: x of a is x*a SI, its reciprocal is 1/(x*a) SI, which is 1/(x*a*b) of b.
        if a.dims != tuple(-d for d in b.dims):
            fail(f"{at}: 1/({a.dimension()}) cannot become {b.dimension()}")
            return
        exact = 1 / (a.value * b.value)
    else:
        if a.dims != b.dims:
            fail(f"{at}: {a.dimension()} cannot become {b.dimension()}")
            return
        exact = a.value / b.value if op == "*" else b.value / a.value
    expected = float(exact)
    if number != expected:
        fail(f"{at}: factor {number!r}, by definition {expected!r} "
             f"(relative error {relative(number, expected):.2e})")


def main(argv):
    path = os.path.join(repo_root(), "data", "VLSupport", "convert.txt")
    quiet = False
    args = list(argv)
    while args:
        arg = args.pop(0)
        if arg == "--file" and args:
            path = args.pop(0)
        elif arg == "--quiet":
            quiet = True
        else:
            print(__doc__.strip(), file=sys.stderr)
            return 2
    problems, counts = check_file(path)
    if not quiet and counts:
        for name, count in counts:
            print(f"{name:<14} {count:4d}")
        print(f"{'total':<14} {sum(c for _, c in counts):4d} in {len(counts)} categories")
    if problems:
        for message in problems[:MAX_SHOWN]:
            print(f"{path}: {message}", file=sys.stderr)
        if len(problems) > MAX_SHOWN:
            print(f"{path}: ... and {len(problems) - MAX_SHOWN} more", file=sys.stderr)
        print(f"FAILED: {len(problems)} problem(s)", file=sys.stderr)
        return 1
    if not quiet:
        print("OK")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
