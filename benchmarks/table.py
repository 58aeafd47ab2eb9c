"""Runs the benchmark programs and makes their rows into a table. Called by benchmarks/run."""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAMS = ROOT / "build" / "release" / "benchmarks" / "programs.txt"
SESSION = ROOT / "tests" / "desktop" / "desktop-session"
RESULTS = ROOT / "build" / "benchmarks" / "results.json"
README = ROOT / "README.md"
REPORT = ROOT / "docs" / "performance.md"
BEGIN, END = "<!-- benchmarks -->", "<!-- /benchmarks -->"
# What README.md shows of the table: for each kind of work one row that says how it compares.
README_ROWS = [
    "ColorPickerButton/construct and show 1,000, against QToolButton",
    "ColorPickerWidget/make and first show, against QColorDialog",
    "ColorPlane/render 512 x 512 with AVX2, against the plain loop",
    "pipette/move of the loupe, against painting the screen",
    "pipette/release until colorSelected on 1 screen, at rest, against one grab",
    "ValueInputs/a value through SliderInputWidget, against two unbound setValue",
    "AdjustingListView/resize 10,000 rows when loaded, against QListView",
    "applyProperty/changed colour, against setProperty, unpolish and polish",
    "applyProperty/changed colour in a window of 1,000 widgets, against a window of 1",
    "loading/UiComponents, against constants of its size that use the same of Qt",
]
HEADINGS = ["path", "ours", "reference", "ratio", "goal", "holds"]


def fail(message):
    sys.exit(f"benchmarks/run: {message}")


def measure(entry, pattern):
    """Runs one program, off screen or on the screens that stand behind its path, and returns its rows."""
    program, _, layout = entry.partition("|")
    with tempfile.TemporaryDirectory() as scratch:
        os.chmod(scratch, 0o700)
        out = pathlib.Path(scratch) / "rows.json"
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8",
                       "XDG_RUNTIME_DIR": scratch, "HOME": scratch}
        command = [program, f"--benchmark_out={out}", "--benchmark_out_format=json"]
        if pattern:
            command.append(f"--benchmark_filter={pattern}")
        if layout:
            environment["UIC_SCREENS"] = layout
            # No desktop is started for rows that nobody wants.
            listed = subprocess.run(command + ["--benchmark_list_tests=true"], env=environment,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
            if listed.returncode != 0:
                fail(f"{program} does not list its rows")
            if pattern and not listed.stdout.strip():
                return []
            command = [SESSION, "--screens", layout] + command
        done = subprocess.run(command, env=environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True)
        text = out.read_text() if out.exists() else ""
    if done.returncode != 0:
        print(done.stdout, file=sys.stderr)
        fail(f"{os.path.basename(program)} ended with status {done.returncode}")
    if not text.strip():
        if pattern and "Failed to match" in done.stdout:
            return []
        print(done.stdout, file=sys.stderr)
        fail(f"{os.path.basename(program)} gave no rows")
    return [row_of(entry) for entry in json.loads(text)["benchmarks"]]


def row_of(entry):
    if entry.get("error_occurred"):
        fail(f"{entry['name']}: {entry['error_message']}")
    path, unit = entry["label"].rsplit("|", 1)
    row = {"path": path, "unit": unit, "ours": entry["ours"], "reference": entry.get("reference"),
           "ratio": entry.get("ratio"), "interval": [entry["low"], entry["high"]],
           "goal": entry.get("goal"), "holds": None}
    if row["goal"] is not None:
        value = row["ours"] if row["ratio"] is None else row["ratio"]
        if value <= row["goal"]:
            row["holds"] = "yes"
        else:
            row["holds"] = "within noise" if row["interval"][0] <= row["goal"] else "no"
    return row


def amount(value, unit):
    if value is None:
        return "–"
    scales = {"s": [(1, "s"), (1e-3, "ms"), (1e-6, "µs"), (1e-9, "ns")],
              "B": [(1 << 20, "MiB"), (1 << 10, "KiB"), (1, "B")]}[unit]
    scale, name = next((pair for pair in scales if abs(value) >= pair[0]), scales[-1])
    return f"{value / scale:.3g} {name}" if value / scale < 1000 else f"{value / scale:,.0f} {name}"


def ratio(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.2f}" if value >= 1.1 else f"{value:.3f}"


def cells(row):
    """The row as the table shows it."""
    shown_ratio = "–"
    if row["ratio"] is not None:
        low, high = row["interval"]
        shown_ratio = f"{ratio(row['ratio'])} ({ratio(low)} to {ratio(high)})"
    goal = "–"
    if row["goal"] is not None:
        goal = f"≤ {row['goal']:.2f}" if row["ratio"] is not None else f"≤ {amount(row['goal'], row['unit'])}"
    return [row["path"], amount(row["ours"], row["unit"]), amount(row["reference"], row["unit"]),
            shown_ratio, goal, row["holds"] or "–"]


def table(rows):
    """Markdown that is also readable as text."""
    lines = [HEADINGS] + [cells(row) for row in rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADINGS))]
    lines.insert(1, ["-" * width for width in widths])
    return "\n".join("| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |"
                     for line in lines)


def rewrite(path, text):
    """Puts the text between the marks in the file."""
    block = f"{BEGIN}\n\n{text}\n\n{END}"
    content, found = re.subn(re.escape(BEGIN) + ".*?" + re.escape(END), lambda _: block, path.read_text(),
                             flags=re.DOTALL)
    if found != 1:
        fail(f"{path.relative_to(ROOT)} must contain {BEGIN} and {END} once")
    path.write_text(content)


def publish(rows):
    by_path = {row["path"]: row for row in rows}
    missing = [path for path in README_ROWS if path not in by_path]
    if missing:
        fail("README_ROWS names rows that there are not: " + "; ".join(missing))
    rewrite(REPORT, table(rows))
    rewrite(README, table([by_path[path] for path in README_ROWS]))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--readme", action="store_true")
    parser.add_argument("--filter", metavar="REGEX")
    options = parser.parse_args()

    rows = []
    for entry in PROGRAMS.read_text().splitlines():
        rows += measure(entry, options.filter)
    if not rows:
        fail("no row matches")
    text = table(rows)
    print(text)
    RESULTS.parent.mkdir(parents=True, exist_ok=True)
    RESULTS.write_text(json.dumps(rows, indent=2, ensure_ascii=False) + "\n")
    if options.readme:
        publish(rows)
    missed = [row["path"] for row in rows if row["holds"] == "no"]
    for path in missed:
        print(f"goal missed: {path}", file=sys.stderr)
    return 1 if options.check and missed else 0


if __name__ == "__main__":
    sys.exit(main())
