#!/usr/bin/python3
"""Runs each command that the documents show, and looks whether each option of gloamtide-still is documented.

$1: the folder of the programs. Each command runs as it stands there, in a folder of its own that holds home.gtf, but for the
size of films: they are made small. It has to end well and to leave the file that it names last, if it names one.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

PROGRAMS = pathlib.Path(sys.argv[1]).resolve()
ROOT = pathlib.Path(__file__).resolve().parents[1]
PAGES = ["README.md", "docs/WALLPAPER.md", "packaging/gloamtide.1", "packaging/gloamtide-still.1"]
COMPLETIONS = sorted((ROOT / "packaging/completions").iterdir())


def commands(page):
    """The lines of a page's code blocks that run one of the programs."""
    text = (ROOT / page).read_text()
    is_manual = page.endswith(".1")
    blocks = re.findall(r"^\.EX$(.*?)^\.EE$" if is_manual else r"^```sh$(.*?)^```$", text, re.M | re.S)
    lines = "\n".join(blocks).replace("\\-", "-" if is_manual else "\\-").splitlines()
    found = [re.sub(r"^build/", "", line) for line in lines if re.match(r"(build/)?gloamtide(-still)?( |$)", line)]
    return [line for line in found if line != "gloamtide"]  # the window itself is tested elsewhere


def configuration():
    """Of 21 records of 48 bytes: a place, all else 0."""
    records = [b""] * 21
    records[14] = b"\x04\x00Home"
    return b"".join(record.ljust(48, b"\0") for record in records)


def run(command):
    if "--until" in command:
        command = re.sub(r"--size \S+", "--size 160x90", command)
    with tempfile.TemporaryDirectory() as folder:
        pathlib.Path(folder, "home.gtf").write_bytes(configuration())
        pathlib.Path(folder, ".cache").mkdir()
        environment = {**os.environ, "HOME": folder, "PATH": f"{PROGRAMS}:{os.environ['PATH']}"}
        done = subprocess.run(["bash", "-euo", "pipefail", "-c", command], cwd=folder, env=environment,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
        out = re.search(r"(\S+\.(?:png|jpg|webp|gif|mp4|webm))\s*(?:#.*)?$", command)
        missing = out and not os.path.getsize(out[1].replace("~", folder) if "~" in out[1] else f"{folder}/{out[1]}")
        return f"{command}: {done.stderr.strip() or 'an empty file'}" if done.returncode or missing else ""


def undocumented():
    options = re.findall(r"--[a-z-]+", subprocess.run([PROGRAMS / "gloamtide-still", "--help"], check=True,
                                                      capture_output=True, text=True).stdout)
    manual = (ROOT / "packaging/gloamtide-still.1").read_text().replace("\\-", "-")
    examples = " ".join(commands("packaging/gloamtide-still.1"))
    for option in sorted(set(options)):
        word = re.compile(re.escape(option) + r"(?![a-z-])")
        if not word.search(manual):
            yield f"{option} is not in the manual page"
        if not word.search(examples):
            yield f"{option} has no example in the manual page"
        for completion in COMPLETIONS:
            if not re.search(rf"(--|-l ){option[2:]}(?![a-z-])", completion.read_text()):
                yield f"{option} is not in {completion.name}"


shown = [command for page in PAGES for command in commands(page)]
failures = [failure for failure in map(run, shown) if failure] + list(undocumented())
print(*failures, f"{len(shown)} commands run", sep="\n")
sys.exit(bool(failures) or len(shown) < 20)
