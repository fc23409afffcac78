"""Units by their own definitions, exact, in SI base units, and unit expressions read with them.

The table is independent of convert.txt: the conversion table's checker measures every row's
factor against it.
"""

import re
from fractions import Fraction

# Unit names that a reader takes for something else; the table must qualify them.
MISREADABLE = {
    "C": "is Celsius in the Temperature rows; write C(coulomb)",
    "F": "is Fahrenheit in the Temperature rows; write the unit out",
    "R": "is Rankine in the Temperature rows; write R(roentgen)",
    "e": "reads as Euler's number; write e(elementary)",
    "gr": "reads as gram; write grain",
    "yr": "does not say which year; write yr(Julian)",
    "u": "reads as the micro prefix; write Da",
}

NAME_RE = re.compile(r"[A-Za-z0-9.]+(?:\([^()]*\))?")
EXPONENT_RE = re.compile(r"\^(-?[0-9]+)")

# pi to far more digits than a double holds, so that rounding the exact factors stays exact.
PI = Fraction("3.14159265358979323846264338327950288419716939937510582097494459230781640629")


class Q:
    """A quantity: an exact value in SI base units and the exponents of its dimension."""

    DIMS = ("m", "kg", "s", "A", "K", "cd", "rad", "bit")

    def __init__(self, value, dims=(0,) * len(DIMS)):
        self.value = Fraction(value)
        self.dims = tuple(dims)

    def __mul__(self, other):
        if not isinstance(other, Q):
            return Q(self.value * Fraction(other), self.dims)
        return Q(self.value * other.value, tuple(a + b for a, b in zip(self.dims, other.dims)))

    __rmul__ = __mul__

    def __truediv__(self, other):
        if not isinstance(other, Q):
            return Q(self.value / Fraction(other), self.dims)
        return Q(self.value / other.value, tuple(a - b for a, b in zip(self.dims, other.dims)))

    def __rtruediv__(self, other):
        return Q(Fraction(other) / self.value, tuple(-a for a in self.dims))

    def __pow__(self, n):
        return Q(self.value ** n, tuple(a * n for a in self.dims))

    def dimension(self):
        parts = [f"{d}^{e}" if e != 1 else d for d, e in zip(self.DIMS, self.dims) if e]
        return "*".join(parts) or "1"


def _base(index):
    dims = [0] * len(Q.DIMS)
    dims[index] = 1
    return Q(1, dims)


def build_units():
    """Units by their own definitions, exact, in SI base units.

    Written from the defining relations (a yard is 0.9144 m, a US gallon 231 in^3, an IT BTU
    is an IT calorie per gram per kelvin times a pound over 1.8) rather than from the factors
    in the file, so that a wrong factor there cannot hide behind the same slip here. Decimal
    figures are taken as strings, so that they stay exact.

    Angles get a dimension of their own, and Hz and rpm count revolutions per time: that is
    how rpm->Hz is 1/60 while rpm->rad/s is 2*pi/60. The becquerel counts decays per second
    and has no angle. A mole is a count of entities, N_A of them, so that an energy per
    particle (eV) and per mole (kJ/mol) compare.
    """
    D = Fraction
    m, kg, s, A, K, cd, rad, bit = (_base(i) for i in range(len(Q.DIMS)))
    u = {}
    u.update(m=m, kg=kg, s=s, A=A, K=K, cd=cd, rad=rad, bit=bit)
    # Length
    u["km"], u["cm"], u["mm"], u["nm"] = 1000 * m, m / 100, m / 1000, m / 10 ** 9
    u["Angstrom"] = m / 10 ** 10
    u["yd"] = D("0.9144") * m
    u["ft"] = u["yd"] / 3
    u["in"] = u["ft"] / 12
    u["mil"] = u["in"] / 1000
    u["mi"] = 1760 * u["yd"]
    u["100km"] = 100 * u["km"]
    u["nmi"] = 1852 * m
    u["ft(US)"] = D(1200, 3937) * m
    u["mi(US)"] = 5280 * u["ft(US)"]
    u["au"] = 149597870700 * m
    u["pc"] = u["au"] * 648000 / PI
    # Time
    u["ms"], u["us"], u["ns"] = s / 1000, s / 10 ** 6, s / 10 ** 9
    u["min"] = 60 * s
    u["hr"] = 60 * u["min"]
    u["day"] = 24 * u["hr"]
    u["wk"] = 7 * u["day"]
    u["yr(Julian)"] = D("365.25") * u["day"]  # the year the light-year is defined with
    # Speed, and the light-year from it
    u["c"] = 299792458 * m / s
    u["ly"] = u["c"] * u["yr(Julian)"]
    u["knot"] = u["nmi"] / u["hr"]
    # Area and volume
    u["ha"] = 10 ** 4 * m ** 2
    u["acre"] = 4840 * u["yd"] ** 2
    u["barn"] = m ** 2 / 10 ** 28
    u["L"] = m ** 3 / 1000
    u["mL"] = u["L"] / 1000
    u["gal(US)"] = 231 * u["in"] ** 3
    u["qt(US)"] = u["gal(US)"] / 4
    u["pt(US)"] = u["qt(US)"] / 2
    u["cup(US)"] = u["pt(US)"] / 2
    u["fl.oz(US)"] = u["cup(US)"] / 8
    u["tbsp(US)"] = u["fl.oz(US)"] / 2
    u["tsp(US)"] = u["tbsp(US)"] / 3
    u["bbl(oil)"] = 42 * u["gal(US)"]
    u["bu(US)"] = D("2150.42") * u["in"] ** 3
    u["gal(UK)"] = D("4.54609") * u["L"]
    u["pt(UK)"] = u["gal(UK)"] / 8
    u["fl.oz(UK)"] = u["pt(UK)"] / 20
    # Mass
    u["g"] = kg / 1000
    u["mg"] = u["g"] / 1000
    u["t"] = 1000 * kg
    u["lb"] = D("0.45359237") * kg
    u["oz"] = u["lb"] / 16
    u["st"] = 14 * u["lb"]
    u["ton(US)"] = 2000 * u["lb"]
    u["ton(UK)"] = 2240 * u["lb"]
    u["grain"] = u["lb"] / 7000
    u["oz(troy)"] = 480 * u["grain"]
    u["ct"] = 200 * u["mg"]
    u["Da"] = D("1.66053906892e-27") * kg  # CODATA 2022
    # Acceleration and force
    u["g0"] = D("9.80665") * m / s ** 2
    u["N"] = kg * m / s ** 2
    u["kN"] = 1000 * u["N"]
    u["dyn"] = u["g"] * u["cm"] / s ** 2
    u["lbf"] = u["lb"] * u["g0"]
    u["kgf"] = kg * u["g0"]
    u["tf(metric)"] = u["t"] * u["g0"]
    u["ozf"] = u["oz"] * u["g0"]
    u["kip"] = 1000 * u["lbf"]
    u["pdl"] = u["lb"] * u["ft"] / s ** 2
    u["slug"] = u["lbf"] * s ** 2 / u["ft"]
    # Pressure
    u["Pa"] = u["N"] / m ** 2
    u["hPa"], u["kPa"], u["MPa"] = 100 * u["Pa"], 1000 * u["Pa"], 10 ** 6 * u["Pa"]
    u["psi"] = u["lbf"] / u["in"] ** 2
    u["ksi"] = 1000 * u["psi"]
    u["bar"] = 10 ** 5 * u["Pa"]
    u["mbar"] = u["bar"] / 1000
    u["atm"] = 101325 * u["Pa"]
    u["torr"] = u["atm"] / 760
    # Conventional liquid columns: mercury of 13595.1 kg/m^3, water of 1000 kg/m^3, under
    # standard gravity.
    mercury, water = D("13595.1") * kg / m ** 3 * u["g0"], 1000 * kg / m ** 3 * u["g0"]
    u["mmHg"] = mercury * u["mm"]
    u["inHg"] = mercury * u["in"]
    u["cmH2O"] = water * u["cm"]
    u["inH2O"] = water * u["in"]
    # Energy and power
    u["J"] = u["N"] * m
    u["kJ"], u["MJ"], u["GJ"] = 1000 * u["J"], 10 ** 6 * u["J"], 10 ** 9 * u["J"]
    u["erg"] = u["dyn"] * u["cm"]
    u["cal(th)"] = D("4.184") * u["J"]
    u["cal(IT)"] = D("4.1868") * u["J"]
    u["kcal(th)"] = 1000 * u["cal(th)"]
    u["kcal(IT)"] = 1000 * u["cal(IT)"]
    u["degF"] = K / D("1.8")  # a temperature difference
    u["BTU(IT)"] = u["cal(IT)"] / (u["g"] * K) * u["lb"] * u["degF"]
    u["W"] = u["J"] / s
    u["kW"] = 1000 * u["W"]
    u["Wh"] = u["W"] * u["hr"]
    u["kWh"] = u["kW"] * u["hr"]
    u["therm(US)"] = 105480400 * u["J"]
    u["toe"] = 10 ** 7 * u["kcal(IT)"]  # tonne of oil equivalent
    u["hp"] = 550 * u["ft"] * u["lbf"] / s
    u["hp(metric)"] = 75 * u["kgf"] * m / s
    u["ton(refr)"] = 12000 * u["BTU(IT)"] / u["hr"]
    # Energies per particle and per mole
    u["mol"] = Q(D("6.02214076e23"))
    u["eV"] = D("1.602176634e-19") * u["J"]
    u["Eh"] = D("4.3597447222060e-18") * u["J"]  # hartree, CODATA 2022
    # The energy of a photon of that wavenumber, as spectroscopists quote energies.
    u["cm^-1"] = D("6.62607015e-34") * u["J"] * s * u["c"] / u["cm"]
    # Viscosity
    u["P"] = u["g"] / (u["cm"] * s)
    u["cP"] = u["P"] / 100
    u["mPa"] = u["Pa"] / 1000
    u["St"] = u["cm"] ** 2 / s
    u["cSt"] = u["St"] / 100
    # Angle and frequency
    u["rev"] = 2 * PI * rad
    u["deg"] = u["rev"] / 360
    u["arcmin"] = u["deg"] / 60
    u["arcsec"] = u["arcmin"] / 60
    u["grad"] = u["rev"] / 400
    u["mrad"] = rad / 1000
    u["Hz"] = u["rev"] / s
    u["kHz"], u["MHz"], u["GHz"] = 10 ** 3 * u["Hz"], 10 ** 6 * u["Hz"], 10 ** 9 * u["Hz"]
    u["rpm"] = u["rev"] / u["min"]
    # Electric
    u["C(coulomb)"] = A * s
    u["mA"], u["uA"] = A / 1000, A / 10 ** 6
    u["Ah"] = A * u["hr"]
    u["mAh"] = u["mA"] * u["hr"]
    u["e(elementary)"] = u["eV"] / u["J"] * u["C(coulomb)"]
    u["V"] = u["W"] / A
    u["kV"], u["mV"] = 1000 * u["V"], u["V"] / 1000
    u["ohm"] = u["V"] / A
    u["kohm"] = 1000 * u["ohm"]
    u["uF"] = u["C(coulomb)"] / u["V"] / 10 ** 6
    u["nF"] = u["uF"] / 1000
    # Magnetism: flux density and flux in tesla and weber, field strength in A/m.
    u["T"] = u["V"] * s / m ** 2
    u["mT"], u["uT"] = u["T"] / 1000, u["T"] / 10 ** 6
    u["G"] = u["T"] / 10 ** 4
    u["Wb"] = u["T"] * m ** 2
    u["Mx"] = u["G"] * u["cm"] ** 2
    u["Oe"] = 1000 / (4 * PI) * A / m
    # Radiation
    u["Bq"] = 1 / s
    u["MBq"], u["GBq"] = 10 ** 6 * u["Bq"], 10 ** 9 * u["Bq"]
    u["Ci"] = 37 * u["GBq"]
    u["mCi"] = u["Ci"] / 1000
    u["Gy"] = u["J"] / kg
    u["rad(dose)"] = u["Gy"] / 100
    u["Sv"] = u["J"] / kg
    u["uSv"] = u["Sv"] / 10 ** 6
    u["rem"] = u["Sv"] / 100
    u["mrem"] = u["rem"] / 1000
    u["R(roentgen)"] = D("2.58e-4") * u["C(coulomb)"] / kg
    # Light
    u["sr"] = rad ** 2
    u["lx"] = cd * u["sr"] / m ** 2
    u["fc"] = cd * u["sr"] / u["ft"] ** 2
    u["ph"] = cd * u["sr"] / u["cm"] ** 2
    u["fL"] = cd / (PI * u["ft"] ** 2)
    # Data
    u["B"] = 8 * bit
    u["kB"], u["MB"], u["GB"], u["TB"] = (10 ** k * u["B"] for k in (3, 6, 9, 12))
    u["KiB"], u["MiB"], u["GiB"] = (2 ** k * u["B"] for k in (10, 20, 30))
    u["Mbit"] = 10 ** 6 * bit
    # Fuel economy
    u["mpg(US)"] = u["mi"] / u["gal(US)"]
    u["mpg(UK)"] = u["mi"] / u["gal(UK)"]
    return u


UNITS = build_units()


class UnitError(Exception):
    """A unit expression that cannot be read, or a unit that UNITS lacks or refuses."""


def parse_units(text):
    """A unit expression such as "ft*lbf/s", "m/s^2" or "W/(m*K)", read left to right."""
    value, pos = _product(text, 0)
    if pos != len(text):
        raise UnitError(f"cannot read {text[pos:]!r}")
    return value


def _product(text, pos):
    result, pos = _factor(text, pos)
    while pos < len(text) and text[pos] in "*/":
        op = text[pos]
        value, pos = _factor(text, pos + 1)
        result = result * value if op == "*" else result / value
    return result, pos


def _factor(text, pos):
    if text.startswith("(", pos):
        value, pos = _product(text, pos + 1)
        if not text.startswith(")", pos):
            raise UnitError(f"unbalanced parentheses in {text!r}")
        pos += 1
    else:
        match = NAME_RE.match(text, pos)
        if not match:
            raise UnitError(f"cannot read {text[pos:]!r}")
        name, pos = match.group(), match.end()
        if text.startswith("^-1", pos) and name + "^-1" in UNITS:  # cm^-1, a unit of its own
            name, pos = name + "^-1", pos + 3
        if name in MISREADABLE:
            raise UnitError(f"unit {name!r} {MISREADABLE[name]}")
        if name not in UNITS:
            raise UnitError(f"unit {name!r} is not in UNITS")
        value = UNITS[name]
    exponent = EXPONENT_RE.match(text, pos)
    if exponent:
        value, pos = value ** int(exponent.group(1)), exponent.end()
    return value, pos
