#!/usr/bin/env python3
"""Plants faults in a copy of the program, one at a time, and tells which of them the tests find.

    plant_faults.py run FOLDER SET...    plants the faults of the sets; FOLDER keeps the copy, its build, results.tsv
    plant_faults.py draw FOLDER          prints a set of faults at random places, the same ones for the same tree

A set is a text file. A fault in it, parted from the next by an empty line:

    @ src/folder/file.cpp: what a user would see
    - the old text, found once in the file, however it is broken into lines
    + the new text
    = why nobody could see it, if so: such a fault counts as equivalent where no test finds it

An interrupted run goes on where it ended. Ends with an error where a fault's old text is not found any more.
"""
import collections
import contextlib
import decimal
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
LONG = "*AnyConfiguration.*:*LongAnimation.*"  # the tests that take longest: only where all others pass
TIME_LIMIT = 300  # seconds for one run of tests, on a busy machine too
MEMORY_LIMIT = 4 << 30  # bytes
VERDICTS = ("found", "not found", "equivalent", "does not build")

Fault = collections.namedtuple("Fault", "set path effect old new equivalent")


# --- faults


def read_faults(file):
    for block in file.read_text().split("\n\n"):
        parts = {mark: "\n".join(line[2:] for line in block.splitlines() if line[:1] == mark) for mark in "@-+="}
        if parts["@"]:
            yield Fault(file.stem, *parts["@"].split(": ", 1), parts["-"], parts["+"], parts["="])


def folder_of(path):
    return str(pathlib.Path(path).parent.relative_to("src"))


def key(fault):
    return f"{fault.set}\t{fault.path}\t{' '.join(fault.old.split())} => {' '.join(fault.new.split())}"


def pattern(text):
    """Finds a text however it is broken into lines."""
    pieces = re.findall(r'"(?:\\.|[^"\\])*"|\w+|[^\w\s]', text)
    return re.compile(r"\s*".join(map(re.escape, pieces)))


def occurs_once(fault, tree):
    file = tree / fault.path
    return file.is_file() and len(pattern(fault.old).findall(file.read_text())) == 1


# --- the copy and its build


class Copy:
    """A copy of the tree, with its build."""

    def __init__(self, folder):
        self.tree = folder / "tree"
        self.build_folder = folder / "build"
        names = subprocess.run(["git", "-C", ROOT, "ls-files", "-z"], capture_output=True, text=True, check=True)
        wanted = {name for name in names.stdout.split("\0") if (ROOT / name).is_file()}
        for name in wanted:
            source, target = ROOT / name, self.tree / name
            if not target.is_file() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
        for file in self.tree.rglob("*"):
            if file.is_file() and str(file.relative_to(self.tree)) not in wanted:
                file.unlink()
        # The tests are listed later than at the build: a faulty program may not even start.
        subprocess.run(["cmake", "-S", self.tree, "-B", self.build_folder, "-DCMAKE_CXX_FLAGS=-O1",
                        "-DGLOAMTIDE_BENCH=OFF", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"],
                       stdout=subprocess.DEVNULL, check=True)

    def builds(self, target):
        return subprocess.run(["cmake", "--build", self.build_folder, "--target", target],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0

    @contextlib.contextmanager
    def planted(self, fault):
        file = self.tree / fault.path
        text = file.read_text()
        file.write_text(pattern(fault.old).sub(lambda _: fault.new, text))
        try:
            yield
        finally:
            file.write_text(text)

    def failure(self, program, tests):
        """The first of these tests that fails, or in which the program crashes or hangs; none where all pass."""
        with tempfile.TemporaryDirectory() as folder:
            environment = {name: value for name, value in os.environ.items() if not name.startswith("QT_")}
            environment |= {"TZ": "UTC", "LC_ALL": "C.UTF-8", "TMPDIR": folder, "QT_QPA_PLATFORM": "offscreen"}
            try:
                run = subprocess.run(
                    [self.build_folder / "tests" / program, "--gtest_fail_fast", "--gtest_filter=" + tests],
                    cwd=folder, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                    stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=False,
                    preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT)))
                if run.returncode == 0:
                    return None
                output, how = run.stdout, " (crash)"
            except subprocess.TimeoutExpired as late:
                output, how = late.stdout or b"", " (hang)"
        output = output.decode(errors="replace")
        failed = re.search(r"\[  FAILED  \] ([^\s,]+)", output)
        if failed:
            return failed[1]
        return (re.findall(r"\[ RUN      \] (\S+)", output) or ["at the start"])[-1] + how

    def runs(self, folder):
        """The runs of tests for a fault in a folder of src/: its own suites first, the longest tests last."""
        qt = ("gloamtide_qt_tests", "-Program.*")  # those need a display
        if folder == "platform/qt":
            return [qt]
        files = self.tree.glob(f"tests/{folder}/*.cpp")
        suites = {name for file in files for name in re.findall(r"^TEST(?:_[FP])?\((\w+)", file.read_text(), re.M)}
        own = [("gloamtide_tests", ":".join(f"*{name}.*" for name in sorted(suites)) + "-" + LONG)] if suites else []
        return [*own, ("gloamtide_tests", "-" + LONG), qt, ("gloamtide_tests", LONG)]

    def verdict(self, fault):
        """A verdict, and the test that finds the fault."""
        with self.planted(fault):
            for program, tests in self.runs(folder_of(fault.path)):
                if not self.builds(program):
                    return "does not build", ""
                # Twice, since some tests measure time and may fail under load.
                test = self.failure(program, tests) and self.failure(program, tests)
                if test:
                    return "found", test
        return "not found", ""


def table(verdicts):
    """A row for each folder: of each set what was planted and what became of it."""
    sets = sorted({fault.set for fault in verdicts})
    counts = collections.Counter((fault.set, place, verdict) for fault, verdict in verdicts.items()
                                 for place in (folder_of(fault.path), "all"))
    print("| folder |" + "".join(f" {name}: planted | {' | '.join(VERDICTS)} |" for name in sets))
    print("|---" * (1 + len(sets) * (1 + len(VERDICTS))) + "|")
    for place in [*sorted({folder_of(fault.path) for fault in verdicts}), "all"]:
        numbers = [[counts[name, place, verdict] for verdict in VERDICTS] for name in sets]
        print(f"| {place} |" + "".join(f" {sum(each)} | {' | '.join(map(str, each))} |" for each in numbers))
    for names in [*([name] for name in sets), sets]:
        found, missed = (sum(counts[name, "all", verdict] for name in names) for verdict in VERDICTS[:2])
        print(f"{' and '.join(names)}: {found} of {found + missed} found, {found / max(found + missed, 1):.0%}")


def run(folder, files):
    faults = [fault for file in files for fault in read_faults(pathlib.Path(file))]
    copy = Copy(folder)
    gone = [fault for fault in faults if not occurs_once(fault, copy.tree)]
    results_file = folder / "results.tsv"
    results_file.touch()
    rows = (line.rsplit("\t", 2) for line in results_file.read_text().splitlines())
    results = {name: (verdict, test) for name, verdict, test in rows}
    # Sorted, so that the file to be put right and the next one to be changed are often the same.
    planted = sorted((fault for fault in faults if fault not in gone), key=lambda each: each.path)
    for program, tests in copy.runs("") if any(key(fault) not in results for fault in planted) else []:
        if not copy.builds(program):
            sys.exit("does not build without a fault")
        test = copy.failure(program, tests)
        if test:
            sys.exit(f"{test} fails without a fault")
    verdicts = {}
    for fault in planted:
        if key(fault) not in results:
            results[key(fault)] = copy.verdict(fault)
            with results_file.open("a") as file:
                print(key(fault), *results[key(fault)], sep="\t", file=file)
        verdict, test = results[key(fault)]
        verdicts[fault] = "equivalent" if fault.equivalent and verdict == "not found" else verdict
        print(f"{verdicts[fault]:14} {fault.set:7} {fault.path}: {fault.effect}  {test}", flush=True)
    table(verdicts)
    for fault in gone:
        print("old text not found once:", key(fault))
    if gone:
        sys.exit(f"{len(gone)} faults could not be planted")


# --- the random set

SEED = 1
COUNT = 60
# The programs, and what only the tests run on. Then lines without code: rows of tables that begin with a text, and
# declarations.
LEFT_OUT = re.compile(r"src/(app|platform/headless)/")
NO_CODE = re.compile(r'\s*($|#|\{~|(using|namespace|template|enum|static_assert|struct|class|case|friend)\b)|'
                     r"(?!const)\S(?!.*\{.*\})")
STATEMENT = re.compile(r"(if \(.*\) )?([\w.:>*()\[\]-]+ [-+*/|&]?= .*|[\w.:>*\[\]-]+\(.*\)|(\+\+|--)[\w.]+);")
OPERATORS = {
    "comparison": re.compile(r"(?<= )([<>]=?|[=!]=)(?= )"),
    "sign": re.compile(r"(?<= )[-+]=?(?= )|(?<=[ (,{])-(?=[\w(])"),
    "logic": re.compile(r"(?<= )(&&|\|\|)(?= )"),
    "number": re.compile(r"(?<![\w.])\d+(\.\d+)?(?=[FU]?\b)"),
}
SWAPS = {"<": "<= >=", "<=": "< >", ">": ">= <=", ">=": "> <", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
         "+": "-", "-": "+", "+=": "-=", "-=": "+="}


def masked(line):
    """The line with its texts and its comment made harmless."""
    line = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', lambda text: "~" * len(text[0]), line)
    return line.split("//")[0].rstrip()


def changed_number(text):
    """A whole number or a zero one larger, another number one larger in its third digit."""
    number = decimal.Decimal(text)
    return str(number + (decimal.Decimal(1).scaleb(number.adjusted() - 2) if number and "." in text else 1))


def replacements(match):
    if match[0][0].isdigit():
        return [changed_number(match[0])]
    unary = match[0] == "-" and match.string[match.end()] != " "
    return [""] if unary else SWAPS[match[0]].split()


def changes(lines, place):
    """What may become of a line, by kind of change."""
    plain = masked(lines[place])
    if NO_CODE.match(plain):
        return {}
    line = lines[place][:len(plain)]
    before = next(filter(None, map(masked, reversed(lines[:place]))), "")
    indent = line[:len(line) - len(line.lstrip())]
    result = {"deletion": [indent + ";"]} if STATEMENT.fullmatch(plain.strip()) and before[-1:] in ";{}:)" else {}
    for kind, operator in OPERATORS.items():
        changed = [line[:match.start()] + new + line[match.end():]
                   for match in operator.finditer(plain) for new in replacements(match)]
        if changed:
            result[kind] = changed
    return result


def drawn(kind, choice, path, lines, place, chance):
    """A change of the line by chance, with as many lines before it as make its text the only one in the file."""
    first, old, new = place, lines[place][:len(masked(lines[place]))], chance.choice(choice)
    while len(pattern(old).findall("\n".join(lines))) > 1:
        first -= 1
        old, new = lines[first] + "\n" + old, lines[first] + "\n" + new
    return Fault("random", path, kind, old, new, "")


def draw(folder):
    copy = Copy(folder)
    chance = random.Random(SEED)
    places = []
    for file in sorted(copy.tree.glob("src/**/*.cpp")):
        path, lines = str(file.relative_to(copy.tree)), file.read_text().splitlines()
        if not LEFT_OUT.match(path):
            places += [(path, lines, place) for place in range(len(lines)) if changes(lines, place)]
    for part in range(COUNT):  # one from each of as many equal parts of the source, of any kind that there is
        piece = places[len(places) * part // COUNT:len(places) * (part + 1) // COUNT]
        candidates = [(kind, choice, *each) for each in piece for kind, choice in changes(*each[1:]).items()]
        kinds = sorted({each[0] for each in candidates})
        chance.shuffle(kinds)
        chance.shuffle(candidates)
        candidates.sort(key=lambda each: kinds.index(each[0]))
        for fault in (drawn(*each, chance) for each in candidates):
            with copy.planted(fault):
                if copy.builds("gloamtide_qt"):
                    break
        print("@ " + fault.path + ": " + fault.effect, *("- " + line for line in fault.old.splitlines()),
              *("+ " + line for line in fault.new.splitlines()), sep="\n", end="\n\n", flush=True)


if len(sys.argv) > 3 and sys.argv[1] == "run":
    run(pathlib.Path(sys.argv[2]).resolve(), sys.argv[3:])
elif len(sys.argv) == 3 and sys.argv[1] == "draw":
    draw(pathlib.Path(sys.argv[2]).resolve())
else:
    sys.exit(__doc__)
