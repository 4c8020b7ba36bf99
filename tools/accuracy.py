#!/usr/bin/python3
"""Measures the almanac against PyEphem and writes the tables of docs/ACCURACY.md to standard output.

PyEphem reckons the Sun by VSOP87 and the Moon by Moshier's theory, which is fitted to DE404; ERFA checks PyEphem.
The program's own numbers come from accuracy_dump.cpp, which this script compiles. Instants are Julian dates. The
program has one time argument only, so it is compared twice: "clock" takes it for universal time, as the user does;
"uniform" takes it for dynamical time, which leaves the model's own error without that of the Earth's rotation.
"""
import io
import pathlib
import subprocess
import tempfile

import ephem
import erfa
import numpy as np

ROOT = pathlib.Path(__file__).resolve().parent.parent
TURN = 2 * np.pi
ARC_SECONDS = np.degrees(1) * 3600
MONTH = 29.530589  # days, the synodic month
HORIZON = np.radians(-0.833)  # where the Sun's centre rises and sets
LATITUDES = (0, 20, 40, 52, 60, 65, 66, 70)
SPANS = ((1000, 2900), (-1300, 2900), (-4000, 4000))
MOON_YEARS = (-1369, 2949)  # beyond them PyEphem falls back to a rough theory
random = np.random.default_rng(1)


def compile_dump(folder):
    sources = [ROOT / "tools/accuracy_dump.cpp", *sorted(ROOT.glob("src/astro/*.cpp")),
               *sorted(ROOT.glob("src/state/*.cpp"))]
    subprocess.run(["c++", "-std=c++20", "-O2", "-ffp-contract=off", "-I", ROOT / "src", "-I", ROOT, "-o", f"{folder}/dump", *sources],
                   check=True)
    return f"{folder}/dump"


def program(rows, *mode):
    """What the program makes of these rows: its columns by name."""
    text = "\n".join(" ".join(map(repr, row)) for row in np.asarray(rows, float).tolist())
    out = subprocess.run([DUMP, *mode], input=text, capture_output=True, text=True, check=True).stdout
    names, values = out.split("\n", 1)
    return dict(zip(names.split(), np.loadtxt(io.StringIO(values), ndmin=2).T))


def almanac(instants):
    return program([(jd, 0, 0, 0) for jd in instants])


def jd_of_year(year):
    return 2451545 + (year - 2000) * 365.25


def wrap(x, period=TURN):
    return (x + period / 2) % period - period / 2


def delta_t(jd):
    """Dynamical less universal time, days."""
    return ephem.delta_t(jd - 2415020) / 86400


def universal(jd, clock):
    """The universal time of an instant that is told by this clock."""
    if clock == "clock":
        return jd
    return jd - delta_t(jd - delta_t(jd))


class Sky:
    """Apparent geocentric places, radians, and the equation of time, minutes."""

    def __init__(self, instants, clock="clock", moon=True):
        sun, moon_body, greenwich = ephem.Sun(), ephem.Moon(), ephem.Observer()
        rows = []
        for jd in instants:
            date = universal(jd, clock) - 2415020
            greenwich.date = jd - 2415020
            sun.compute(date)
            row = [sun.g_ra, sun.g_dec, greenwich.sidereal_time()]
            if moon:
                moon_body.compute(date)
                row += [moon_body.g_ra, moon_body.g_dec, moon_body.phase]
            rows.append(row)
        self.jd = np.asarray(instants)
        self.ra, self.dec, sidereal, *rest = np.array(rows, float).T
        self.eot = wrap(sidereal - self.ra - TURN * (self.jd % 1)) / TURN * 1440
        self.lon = self.ecliptic(self.ra, self.dec)[0]
        if moon:
            self.moon_ra, self.moon_dec, self.lit = rest
            self.moon_lon, self.moon_lat = self.ecliptic(self.moon_ra, self.moon_dec)

    def ecliptic(self, ra, dec):
        e = erfa.obl80(self.jd, 0) + erfa.nut80(self.jd, 0)[1]
        return (np.arctan2(np.sin(ra) * np.cos(e) + np.tan(dec) * np.sin(e), np.cos(ra)) % TURN,
                np.arcsin(np.sin(dec) * np.cos(e) - np.cos(dec) * np.sin(e) * np.sin(ra)))


def compare(sky, moon=True):
    """Program less source, at the instants of the source: (quantity, unit, differences)."""
    own = almanac(sky.jd)
    yield "Sun's declination", "degrees", own["SunDeclination"] - np.degrees(sky.dec)
    yield "Equation of time", "minutes", own["EquationOfTime"] - sky.eot
    if moon:
        def degrees(name, angle):
            return wrap(own[name] - np.degrees(angle), 360)
        yield "Moon's ecliptic longitude", "degrees", degrees("MoonLongitude", sky.moon_lon)
        yield "Moon's ecliptic latitude", "degrees", degrees("MoonLatitude", sky.moon_lat)
        yield "Moon's right ascension", "minutes", wrap(own["MoonRightAscension"] - sky.moon_ra / TURN * 24, 24) * 60
        yield "Moon's declination", "degrees", degrees("MoonDeclination", sky.moon_dec)
        elongation = (sky.moon_lon - sky.lon) % TURN
        yield ("Moon's age, against the true elongation", "days",
               wrap(own["MoonAgeDays"] - elongation / TURN * MONTH, MONTH))
        yield "Moon's lit part", "per cent", own["MoonLitPercent"] - sky.lit


def compare_lunations(sky):
    """Ages and phases against the instants of new and full Moon."""
    own = almanac(sky.jd)["MoonAgeDays"]
    true = np.unwrap(sky.moon_lon - sky.lon)
    shown = np.unwrap(own / MONTH * TURN)
    month = np.floor(true / TURN)
    since = sky.jd - np.interp(month * TURN, true, sky.jd)
    whole = month > month[0]
    yield "Moon's age, against the days since new Moon", "days", wrap(own - since, MONTH)[whole]
    halves = np.arange(np.ceil(true[0] / np.pi) + 1, np.floor(true[-1] / np.pi)) * np.pi
    shown += round((true[0] - shown[0]) / TURN) * TURN
    yield ("Instants of new and full Moon", "hours",
           (np.interp(halves, shown, sky.jd) - np.interp(halves, true, sky.jd)) * 24)


def compare_rise_and_set(sky, days, latitude):
    """Differences of sunrise and sunset in minutes, and on how many days the program errs in that there are any.

    days: Julian day numbers inside the quarter days of the sky. Each has another longitude, whose local mean time the
    program is set to.
    """
    longitude = np.resize((0, 75, 150, -150, -75), len(days))
    noon = days - longitude / 360
    own = program(np.column_stack([noon, np.full(len(days), latitude), longitude, -longitude / 15]))
    phi = np.radians(latitude)

    def is_up(t):
        dec, eot = np.interp(t, sky.jd, sky.dec), np.interp(t, sky.jd, sky.eot)
        hour_angle = TURN * (t - noon + eot / 1440)
        return np.sin(phi) * np.sin(dec) + np.cos(phi) * np.cos(dec) * np.cos(hour_angle) > np.sin(HORIZON)

    culmination = noon - np.interp(noon, sky.jd, sky.eot) / 1440
    differences, none = [], np.full(len(days), True)
    for name, side in ("Rise", -0.5), ("Set", 0.5):
        down, up = culmination + side, culmination.copy()
        happens = ~is_up(down) & is_up(up)
        for _ in range(25):
            middle = (down + up) / 2
            high = is_up(middle)
            up, down = np.where(high, middle, up), np.where(high, down, middle)
        both = happens & (own["NoRiseSet"] == 0)
        differences.append((own[name] - (up - noon + 0.5) * 1440)[both])
        none &= ~happens
    return *differences, np.sum(none != (own["NoRiseSet"] != 0))


def compare_seasons(years, clock):
    """The instants of equinoxes and solstices: the Sun's right ascension is 0, 6, 12, 18 hours."""
    sun, instants = ephem.Sun(), []
    for year in years:
        for quarter in range(4):
            jd = jd_of_year(year) + 79 + quarter * 91.3
            for _ in range(6):  # Newton's method, from less than half a year away
                sun.compute(universal(jd, clock) - 2415020)
                jd += wrap(quarter * TURN / 4 - sun.g_ra) / TURN * 365.2422
            instants.append(jd)
    before = np.array(instants) - 40  # in the season and in the calendar year that the instant ends
    return (before + almanac(before)["SeasonDaysLeft"] - instants) * 24


def compare_calendar():
    """Each day from -4712 on, counted one by one from Julian date 0, at changing times of the day; in seconds.

    Yields the differences of the Julian dates, and of the dates that come back from them.
    """
    lengths = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)
    dates = np.array([(year, month, day)
                      for year in range(-4712, 4001)
                      for leap in [year % 4 == 0 and (year <= 1582 or year % 100 != 0 or year % 400 == 0)]
                      for month, length in enumerate(lengths, 1)
                      for day in range(1, length + 1 + (leap and month == 2))
                      if not ((year, month) == (1582, 10) and 4 < day < 15)])
    count = np.arange(len(dates))
    assert tuple(dates[2451545]) == (2000, 1, 1)
    second = count * 7919 % 86400
    shown = dates[:, 0] >= -4000
    own = program(np.column_stack([dates, second // 3600, second // 60 % 60, second % 60])[shown], "calendar")

    def key(year, month, day):
        return (year * 13 + month) * 32 + day
    keys = key(*dates.T)
    back = np.searchsorted(keys, key(own["Year"], own["Month"], own["Day"]))
    assert np.all(keys[back] == key(own["Year"], own["Month"], own["Day"]))  # they are days of the calendar
    time = own["Hour"] * 3600 + own["Minute"] * 60 + own["Second"]
    yield (own["JD"] - (count - 0.5 + second / 86400)[shown]) * 86400
    yield (back - count[shown]) * 86400 + time - second[shown]


def check_source():
    """How far PyEphem and ERFA lie apart, 1900 to 2100."""
    instants = random.uniform(jd_of_year(1900), jd_of_year(2100), 5000)
    sky = Sky(instants)
    tt = instants + [delta_t(jd) for jd in instants]
    earth, barycentric = erfa.epv00(tt, 0)
    light = np.linalg.norm(earth["p"], axis=1) * erfa.AULT / erfa.DAYSEC  # days
    past_earth, past_barycentric = erfa.epv00(tt - light, 0)
    sun = past_barycentric["p"] - past_earth["p"] - barycentric["p"]
    distance = np.linalg.norm(sun, axis=1)
    velocity = barycentric["v"] * erfa.AULT / erfa.DAYSEC  # of light's
    sun = erfa.ab(sun / distance[:, None], velocity, distance, np.sqrt(1 - np.sum(velocity**2, axis=1)))
    moon = erfa.moon98(tt, 0)["p"]
    true_equator = erfa.pnm06a(tt, 0)
    for name, vector, ra, dec in (("Sun", sun, sky.ra, sky.dec), ("Moon", moon, sky.moon_ra, sky.moon_dec)):
        place = np.einsum("nij,nj->ni", true_equator, vector)
        apart = erfa.sepp(place, erfa.s2c(ra, dec)) * ARC_SECONDS
        yield f"{name}'s place", "arc seconds", apart
    greenwich = sky.ra + sky.eot / 1440 * TURN + TURN * (instants % 1)
    yield "Sidereal time", "seconds", wrap(greenwich - erfa.gst06a(instants, 0, tt, 0)) / TURN * 86400


def figure(x):
    return np.format_float_positional(x, precision=2, unique=False, fractional=False, trim="-")


def largest_and_rms(differences):
    return figure(np.max(np.abs(differences))), figure(np.sqrt(np.mean(differences**2)))


def table(title, head, *rows):
    print(f"\n### {title}\n")
    for row in head, ["---", *["---:"] * (len(head) - 1)], *rows:
        print("| " + " | ".join(map(str, row)) + " |")


def misnamed_seasons(sky):
    """Days a year."""
    return figure(np.mean(almanac(sky.jd)["Season"] != np.floor(sky.lon / (TURN / 4))) * 365.25)


def present():
    sky = Sky(np.arange(jd_of_year(1900) - 2, jd_of_year(2100) + 2, 0.25))
    seasons = compare_seasons(range(1900, 2101), "clock")
    quantities = [*compare(sky), *compare_lunations(sky), ("Instants of equinoxes and solstices", "hours", seasons)]
    table("1900 to 2100, by the clock", ("Quantity", "Unit", "Largest", "RMS"),
          *((name, unit, *largest_and_rms(each)) for name, unit, each in quantities),
          ("Season named wrongly", "days a year", misnamed_seasons(sky), "–"))

    days = np.arange(np.ceil(sky.jd[0]) + 1, sky.jd[-1] - 1, 3)
    rows = []
    for latitude in sorted({side * each for each in LATITUDES for side in (1, -1)}, reverse=True):
        rise, set_, wrong = compare_rise_and_set(sky, days, latitude)
        name = f"{abs(latitude)}° {'north' if latitude > 0 else 'south'}" if latitude else "0°"
        rows.append((name, *largest_and_rms(rise), *largest_and_rms(set_), figure(wrong / len(days) * 100)))
    table("Sunrise and sunset, 1900 to 2100, minutes",
          ("Latitude", "Sunrise, largest", "RMS", "Sunset, largest", "RMS", "Days misjudged, per cent"), *rows)


def long_span(first, last, clock):
    """The rows of one span of years: name and unit, largest and RMS."""
    with_moon = first >= MOON_YEARS[0] and last <= MOON_YEARS[1]
    sky = Sky(np.sort(random.uniform(jd_of_year(first), jd_of_year(last), 40000)), clock, with_moon)
    for name, unit, differences in compare(sky, with_moon):
        yield f"{name}, {unit}", " / ".join(largest_and_rms(differences))
    centuries = np.floor(jd_of_year(np.arange(first, last + 1, 100)))
    quarters = Sky((centuries[:, None] + np.arange(-2, 368, 0.25)).ravel(), clock, False)
    days = (centuries[:, None] + np.arange(0, 366, 2)).ravel()
    rise, set_, _ = compare_rise_and_set(quarters, days, 52)
    yield "Sunrise and sunset at 52° north, minutes", " / ".join(largest_and_rms(np.concatenate([rise, set_])))
    yield ("Equinoxes and solstices, hours",
           " / ".join(largest_and_rms(compare_seasons(range(first, last + 1, 20), clock))))
    yield "Season named wrongly, days a year", misnamed_seasons(sky)


def far():
    for clock, title in (("clock", "Longer spans, by the clock"), ("uniform", "Longer spans, in uniform time")):
        spans = [dict(long_span(*span, clock)) for span in SPANS]
        table(title + ": largest / RMS", ("Quantity", *(f"{first} to {last}" for first, last in SPANS)),
              *((name, *(span.get(name, "–") for span in spans)) for name in spans[0]))


def main():
    present()
    far()
    jd_seconds, seconds = compare_calendar()
    table("Calendar, each day from -4000 to 4000", ("Quantity", "Value"),
          ("Days compared", len(seconds)),
          ("Julian date of a calendar date, largest difference, seconds", figure(np.max(np.abs(jd_seconds)))),
          ("Dates that come back one second low, per cent", figure(np.mean(seconds == -1) * 100)),
          ("Dates that come back with another difference", np.sum((seconds != 0) & (seconds != -1))))
    table("The source against ERFA, 1900 to 2100", ("Quantity", "Unit", "Largest", "RMS"),
          *((name, unit, *largest_and_rms(apart)) for name, unit, apart in check_source()))
    years = np.array((-4000, -1300, 0, 1000, 1900, 2000, 2100, 2900, 4000))
    jd = jd_of_year(years)
    differences = np.array([delta_t(each) for each in jd])
    sidereal = wrap(erfa.gmst82(jd, 0) - erfa.gmst06(jd, 0, jd + differences, 0)) / TURN * 86400
    table("What the source rests on, seconds", ("Year", *years),
          ("Dynamical less universal time", *(f"{each * 86400:.0f}" for each in differences)),
          ("Sidereal time, IAU 1982 less IAU 2006", *(f"{each:.1f}" for each in sidereal)))
    print(f"\nPyEphem {ephem.__version__}, ERFA {erfa.version.erfa_version}.")


with tempfile.TemporaryDirectory() as Folder:
    DUMP = compile_dump(Folder)
    main()
