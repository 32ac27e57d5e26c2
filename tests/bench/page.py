"""Writes docs/PERFORMANCE.md from one run of all measures.

Use: page.py PAGE BENCH.json SCREEN.json THROUGHPUT.txt START.txt

The first two files are the benchmarks' own, in which "rapport" is the time over that of the bound beside it. The third
has a line "kind: n sights a second" for each kind of body, the fourth a line "name milliseconds kilobytes" for the
program and for the bare window.
"""

import json
import pathlib
import re
import sys

# What is measured, and the bound that stands beside it, by the benchmark's name.
ROWS = {
    "Places": {
        "HelioContreCosinus": ("Heliocentric place of {}, with its text", "the bare cosines of the same terms"),
        "HelioContreLibnova": ("Heliocentric place of {}, with its text", "libnova's untruncated series"),
        "PlaceContreCosinus": ("Apparent place of {}, with its texts", "the bare cosines of its four heliocentric places"),
        "NutationContreLibnova": ("Nutation and obliquity", "libnova's"),
        "LuneComplete": ("The Moon, geocentric and from a place, with texts", "as many bare sines"),
        "LuneContreTheorieEntiere": ("The Moon, geocentric", "libnova's whole theory"),
        "LuneDuLieu": ("The Moon's place from the observer alone", "twenty bare sines"),
        "PlaceEtoile": ("A star's place as text", "its three functions and two conversions"),
        "PlaceContrePrecession": ("A star's place as text", "libnova's precession of numbers, without texts"),
        "EtoilesVisibles": ("The list of visible stars", "the places of its stars alone"),
        "ChargeTable": ("The star table split", "copies of its names"),
    },
    "The sky of today": {
        "CielContreDit": ("Place of {} in today's sky, and all that its moment needs", "the told apparent place, with its texts"),
        "DeuxContreDit": ("Sums of {} and the Earth two cosines at a time", "the told apparent place, with its texts"),
        "LuneContreEntiere": ("The Moon in today's sky, and all that its moment needs", "libnova's whole theory"),
        "EtoileDansCiel": ("A star in a sky that is there", "that sky"),
        "Controle": ("A sight checked, every cause and step: {}", "its told reduction, with its texts"),
        "Glissades": ("A sight searched for a slip: {}", "the check alone"),
        "RegistreContreFichier": ("A log of 100,000 rows opened", "its file read into memory"),
        "PageContreRegistre": ("A page of its rows in words' parts", "its rows filtered without a limit"),
        "PreparePoint": ("A sight made ready for fixes", "the sky of its moment alone"),
        "Point": ("The fix of {}, ellipse and tests with it", "their heights from one place"),
        "PointFautif": ("The same of {}, one a degree off", "their heights from one place"),
        "JourDuPlan": ("All bodies through a day made ready", "their places at one moment"),
        "MomentDuPlan": ("The sky of a moment from the ship, presets and motions", "its heights alone"),
        "JourneeDuPlan": ("Twilights, rises and passages of a day under way", "a hundred heights of the Sun"),
        "MoisDAlmanach": ("An almanac of thirty days, figures and pages", "the places of its hours"),
        "NuitDuPlan": ("The best sets of a night's twilights, {}", "the skies of those minutes"),
        "Serie": ("A run of {} reduced to one", "the sky of as many moments"),
        "Meridienne": ("Noon by {}, top and tests with it", "the sky of as many moments"),
        "Lunaire": ("The clock from the Moon by {}, searched six hours either way", "the sky of 75 moments"),
        "ClasseLune": ("Sixty stars ranked for a lunar distance", "the sky of three moments"),
        "FaitVoyage": ("The hardest practice made", "the sky of as many moments as it has sights"),
    },
    "Sights, lines and files": {
        "ReductionSoleil": ("A Sun sight reduced, with its texts", "its bare functions in 64 bits, without a text"),
        "ClicCalcul": ("A click on \"Calcul\", reduction and sheet, {}", "a copy of the sheet's record"),
        "ClicDroite": ("\"Afficher\" of a stored line, {}", "a copy of the sheet's record"),
        "RetraceTrois": ("Three lines and two transports drawn again", "a copy of the sheet's record"),
        "EnregistreDurable": ("\"Enregistrer\", all keys in one durable commit", "one flushed write of that size"),
        "FichierEnMemoire": ("A `.LoP` file in memory, read and reduced", "a search for its line ends"),
        "OuvreDossier": ("The file dialog on 10,000 sights", "a bare walk through the folder"),
    },
    "Numbers as text": {
        "TexteGeneral64": ("General text of a 64-bit figure", "`std::to_chars` to as many digits"),
        "TexteGeneral32": ("General text of a 32-bit figure", "`std::to_chars` to as many digits"),
        "FormatMasque": ("A figure under a mask", "`snprintf` with two decimals"),
        "LectureVal": ("The number at the start of a text", "`std::from_chars`"),
    },
    "Chart and sky, without a screen": {
        "LitUnFichier": ("One full outline file read", "bare `read` and `std::from_chars` of its bytes"),
        "DessineCarte": ("The whole chart read and recorded, {}", "bare `read` and `std::from_chars` of its files"),
        "RedessineCiel": ("The sky worked out and recorded, {}", "the bare sum of its places"),
    },
    "On the screen, 1920 by 1080": {
        "CarteEntiere": ("The chart from key to picture, {}", "`QPainter::drawPolyline` of the same points"),
        "PasDeZoom": ("A step of the zoom, sheet and chart, {}", "`QPainter::drawPolyline` of the same points"),
        "CielEntier": ("The sky worked out and painted", "a fill of its picture"),
        "SurvolCiel": ("The pointer on another star", "a fill of its picture"),
        "OuvreCiel": ("The sky window opened", "a fill of its picture"),
    },
}
SKY = {"1": "horizontal chart", "0": "equatorial chart"}


def time_text(nanoseconds):
    """A time with its unit, three digits."""
    for limit, unit in ((1e3, "ns"), (1e6, "µs"), (1e9, "ms")):
        if nanoseconds < limit:
            return f"{nanoseconds / (limit / 1e3):.3g} {unit}"
    return f"{nanoseconds / 1e9:.3g} s"


def detail(benchmark):
    """What the arguments of a benchmark say to a reader."""
    if benchmark.get("label"):
        return benchmark["label"].capitalize()
    parts = benchmark["name"].split("/")[1:]
    if benchmark["name"].startswith("RedessineCiel"):
        return SKY[parts[0]]
    words = []
    for name, _, value in (part.partition(":") for part in parts):
        if not value:
            words.append(name)
        elif name == "grille":
            words.append("with the grid" if value == "0" else "without the grid")
        else:
            words.append("the whole world" if value == "0" else f"{value} miles high")
    return ", ".join(words)


def benchmark_rows(files):
    """The rows of each heading; a benchmark without a line above is an error, so that none is forgotten."""
    benchmarks = [b for f in files for b in json.loads(pathlib.Path(f).read_text())["benchmarks"]]
    known = {name: heading for heading, rows in ROWS.items() for name in rows}
    rows = {heading: [] for heading in ROWS}
    for b in benchmarks:
        name = b["name"].split("/")[0]
        if name not in known:
            raise SystemExit(f"page.py: {name} has no line in the page")
        what, bound = ROWS[known[name]][name]
        own = b["rapport"] * b["borne_ns"]
        rows[known[name]].append((what.format(detail(b)), bound, time_text(own), b["rapport"]))
    missing = set(known) - {b["name"].split("/")[0] for b in benchmarks}
    if missing:
        raise SystemExit(f"page.py: not measured: {', '.join(sorted(missing))}")
    return rows


def table(rows):
    """Rows as a table; a ratio has three digits."""
    lines = ["| What | Against | Takes | Ratio |", "|---|---|---:|---:|"]
    lines += [f"| {what} | {bound} | {own} | {ratio:.3g} |" for what, bound, own, ratio in rows]
    return "\n".join(lines)


def start_rows(text):
    """Start and memory of the program over those of the bare window."""
    figures = {name: (float(ms), float(kb)) for name, ms, kb in re.findall(r"^(\w+) ([\d.]+) (\d+)$", text, re.M)}
    (ms, kb), (bare_ms, bare_kb) = figures["programme"], figures["nue"]
    return [
        ("Start to the first window", "the toolkit's bare window", f"{ms:.0f} ms", ms / bare_ms),
        ("Resident memory with the window open", "the toolkit's bare window", f"{kb / 1024:.0f} MB", kb / bare_kb),
    ]


def page(bench, screen, throughput, start):
    """The whole page."""
    parts = [
        "# Performance",
        "Made by `make bench`, in one run. Each ratio is the program's time over that of an outside bound measured right\n"
        "beside it, the best of several rounds of each: on another or a busier machine the times change, the ratios\n"
        "hardly.",
    ]
    for heading, rows in benchmark_rows([bench, screen]).items():
        parts += [f"## {heading}", table(rows)]
    parts += ["## The program", table(start_rows(pathlib.Path(start).read_text()))]
    sights = re.findall(r"^(.+): (\d+) sights a second$", pathlib.Path(throughput).read_text(), re.M)
    parts += [
        "## Sights from files",
        "`velmaris-calcul reduit`, files in the system's cache, one process:",
        "| Body | Sights a second |\n|---|---:|\n" + "\n".join(f"| {body} | {int(n):,} |" for body, n in sights),
    ]
    return "\n\n".join(parts) + "\n"


if __name__ == "__main__":
    if len(sys.argv) != 6:
        raise SystemExit(__doc__)
    destination = pathlib.Path(sys.argv[1])
    notes = pathlib.Path(__file__).with_name("notes.md")
    destination.write_text(page(*sys.argv[2:]) + "\n" + notes.read_text())
