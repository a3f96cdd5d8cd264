#!/usr/bin/env python3
"""Makes the tables, the JSON and the plot of a benchmark run.

report.py TIMES TELLING FIGURES MACHINE DIRECTORY

TIMES and TELLING are what Google Benchmark wrote, with the shipped library and with the one that
tells; FIGURES holds one "name value" a line, MACHINE is a text. The tables go to the output as well.
"""

import json
import sys
from pathlib import Path

WORKLOADS = ["stations", "locations", "calls", "contexts"]
# From the platform's tree to typed objects and back to it.
SUBJECTS = {
    "deserialize": ["kiv", "read", "fill", "boost", "nlohmann", "protobuf"],
    "serialize": ["kiv", "build", "boost", "nlohmann", "protobuf"],
}
LIMITS = {"deserialize": ("read", 1.20), "serialize": ("build", 1.03)}
PEERS = {"boost": 0.4, "nlohmann": 0.4, "protobuf": 1.0}
# From and to what is each peer's own: its tree, or its bytes.
OWN = {direction: ["kiv"] + [peer + "-own" for peer in PEERS] for direction in SUBJECTS}


def load_times(path):
    """The fastest round of each (workload, direction, subject) in nanoseconds for each element, and
    how far the middle one lies above it."""
    rounds = {}
    for run in json.loads(Path(path).read_text())["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        case = tuple(run["run_name"].split("/")[:3])
        scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
        rounds.setdefault(case, []).append(run["real_time"] * scale / run["elements"])
    fastest = {case: min(times) for case, times in rounds.items()}
    above = {case: sorted(times)[len(times) // 2] / fastest[case] - 1 for case, times in rounds.items()}
    return fastest, above


def load_figures(path):
    lines = (line.split() for line in Path(path).read_text().splitlines())
    return {name: float(value) for name, value in lines}


class Run:
    """All that one run measured."""

    def __init__(self, times, telling, figures):
        self.times, self.above = load_times(times)
        self.telling, _ = load_times(telling)
        self.figures = load_figures(figures)

    def time_ratio(self, workload, direction, other):
        return self.times[workload, direction, "kiv"] / self.times[workload, direction, other]

    def told(self, workload, direction):
        return self.telling[workload, direction, "kiv"] / self.times[workload, direction, "kiv"]

    def counted(self, workload, direction, subject):
        """Instructions for each element, or None where none were counted."""
        return self.figures.get(f"instructions/{workload}/{direction}/{subject}")

    def beyond(self, what, workload, direction, other):
        """How much more the library allocates or holds for each element than the other."""
        of = lambda subject: self.figures[f"{what}/{workload}/{direction}/{subject}"]
        return of("kiv") - of(other)


def goals_of_times(run):
    """Rows of (figure, goal, measured, "<=" for at most or ">=" for at least)."""
    rows = []
    for workload in WORKLOADS:
        for direction, (other, limit) in LIMITS.items():
            rows.append((f"{direction}, time over {other}, {workload}", limit,
                         run.time_ratio(workload, direction, other), "<="))
            if mine := run.counted(workload, direction, "kiv"):
                rows.append((f"{direction}, instructions over {other}, {workload}", limit,
                             mine / run.counted(workload, direction, other), "<="))
    for peer, limit in PEERS.items():
        for workload in WORKLOADS:
            for direction in SUBJECTS:
                rows.append((f"{direction}, time over {peer}, {workload}", limit,
                             run.time_ratio(workload, direction, peer), "<="))
    return rows


def goals_of_memory(run):
    rows = []
    for workload in WORKLOADS:
        rows += [
            (f"serialize, allocations an element beyond build, {workload}", 0,
             round(run.beyond("allocations", workload, "serialize", "build"), 2), "<="),
            (f"deserialize, allocations an element beyond read and a buffer where a key is long, {workload}", 0,
             round(run.beyond("allocations", workload, "deserialize", "read")
                   - run.figures[f"allocations/{workload}/deserialize/buffers"], 2), "<="),
            (f"deserialize, bytes held an element beyond read, {workload}", 0,
             round(run.beyond("held", workload, "deserialize", "read"), 2), "<="),
        ]
    return rows


def goals_of_process(run):
    figures = run.figures
    rows = [(f"memory written by a process, library {state}, kB", 80, figures[f"memory-{state}/kiv"], "<=")
            for state in ["loaded", "used"]]
    rows += [(f"memory written by a process, library {state}, over the protobuf library's", 0.3,
              figures[f"memory-{state}/kiv"] / figures[f"memory-{state}/protobuf"], "<=")
             for state in ["loaded", "used"]]
    optional = [
        ("start-up, instructions over the protobuf library's", 0.07, "startup-instructions", "<="),
        ("start-up, processor time over the protobuf library's", 0.07, "startup-time", "<="),
        ("full build, two jobs, processor time over the protobuf library's", 0.8, "build-worked-ratio", "<="),
        ("build without a change, seconds", 1, "build-unchanged", "<="),
        ("build with one definition touched, seconds", 5, "build-touched", "<="),
        ("stripped library, bytes", 2_150_000, "size/kiv", "<="),
        ("symbolic data relocations", 450, "symbolic-relocations/kiv", "<="),
        ("nesting in 8 MB of stack, in", 28_000, "depth/in", ">="),
        ("nesting in 8 MB of stack, out", 55_000, "depth/out", ">="),
        ("nesting in 8 MB of stack, freed", 100_000, "depth/freed", ">="),
    ]
    return rows + [(what, limit, figures[name], way) for what, limit, name, way in optional if name in figures]


def text_of(number):
    if number is None:
        return ""
    return f"{number:,.0f}" if number >= 1000 or number == int(number) else f"{number:.3f}"


def table(titles, rows):
    lines = ["| " + " | ".join(titles) + " |", "|---" * len(titles) + "|"]
    return lines + ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]


def goal_table(rows):
    def verdict(limit, measured, way):
        return "met" if (measured <= limit if way == "<=" else measured >= limit) else "missed"

    return table(["figure", "goal", "measured", ""],
                 [(what, f"{way} {text_of(limit)}", text_of(measured), verdict(limit, measured, way))
                  for what, limit, measured, way in rows])


def element_table(run):
    titles = ["document", "direction", "ns an element"]
    titles += ["over by hand"] + [f"over {peer}" for peer in PEERS]
    rows = []
    for workload in WORKLOADS:
        for direction, (other, _) in LIMITS.items():
            rows.append([workload, direction, f"{run.times[workload, direction, 'kiv']:,.0f}"]
                        + [f"{run.time_ratio(workload, direction, each):.2f}" for each in [other, *PEERS]])
    return table(titles, rows)


def process_table(run):
    """What a process pays for the library, and for the protobuf library of the same interface."""
    rows = [
        ("memory written when loaded, kB", "memory-loaded"),
        ("memory written after one use, kB", "memory-used"),
        ("share of one among twenty processes, kB", "memory-of-twenty"),
        ("start-up, processor time, µs", "startup-microseconds"),
        ("start-up, page faults", "startup-faults"),
        ("stripped library, bytes", "size"),
        ("symbolic data relocations", "symbolic-relocations"),
        ("full build, two jobs, seconds", "build-seconds"),
    ]
    lines = table(["", "this library", "protobuf", "ratio"],
                  [(what, text_of(mine), text_of(theirs), f"{mine / theirs:.3f}")
                   for what, name in rows
                   if (mine := run.figures.get(name + "/kiv")) is not None
                   and (theirs := run.figures.get(name + "/protobuf"))])
    if "startup-time-low" in run.figures:
        lines += ["", f"The ratio of start-up times lies between {run.figures['startup-time-low']:.3f} and "
                      f"{run.figures['startup-time-high']:.3f} with a probability of 95 %."]
    return lines


def size_table(run):
    return table(["elements", "serialize, ns an element", "deserialize, ns an element"],
                 [(f"{elements:,}", *(f"{run.times[f'size{elements}', way, 'kiv']:.0f}"
                                      for way in ["serialize", "deserialize"]))
                  for elements in [10, 1000, 100_000, 1_000_000]])


def telling_table(run):
    def instructions(workload, way):
        if not (silent := run.counted(workload, way, "kiv")):
            return ""
        return f"{run.counted(workload, way, 'telling') / silent:.2f}"

    return table(["document", "deserialize, time", "instructions", "serialize, time", "instructions"],
                 [(workload, *(cell for way in ["deserialize", "serialize"]
                               for cell in (f"{run.told(workload, way):.2f}", instructions(workload, way))))
                  for workload in WORKLOADS])


def case_table(run, all_subjects):
    rows = []
    for workload in WORKLOADS:
        for direction, subjects in all_subjects.items():
            for subject in subjects:
                case = (workload, direction, subject)
                rows.append((*case, f"{run.times[case]:,.0f}", f"{run.time_ratio(*case):.2f}",
                             f"{run.above[case]:.0%}",
                             text_of(run.figures.get("allocations/" + "/".join(case))),
                             text_of(run.counted(*case))))
    return table(["document", "direction", "subject", "ns an element", "kiv over it", "middle round above",
                  "allocations", "instructions"], rows)


def page(run, machine):
    goals = {"per element": goals_of_times(run) + goals_of_memory(run), "per process": goals_of_process(run)}
    parts = [
        ("", [machine]),
        ("What one element costs", element_table(run)),
        ("What the library costs a process", process_table(run)),
        ("How it grows", size_table(run)),
        ("What it costs to have the library tell, over the silent one", telling_table(run)),
        ("Goals for each element", goal_table(goals["per element"])),
        ("Goals for each process, and for the build", goal_table(goals["per process"])),
        ("Every case", case_table(run, SUBJECTS)),
        ("From and to the peers' own trees, or bytes", case_table(run, OWN)),
    ]
    lines = []
    for title, content in parts:
        lines += ([f"### {title}", ""] if title else []) + content + [""]
    return lines[:-1], [row for rows in goals.values() for row in rows]


def plot(times):
    """Bars of time on the same road relative to the library's own, a group for each document and direction."""
    bar, gap, left, width = 16, 26, 210, 860
    shown = [(w, d, s) for w in WORKLOADS for d in SUBJECTS for s in SUBJECTS[d]]
    ratio = lambda case: times[case] / times[case[0], case[1], "kiv"]
    scale = (width - left - 60) / max(map(ratio, shown))
    colours = {"kiv": "#1f6f8b", "build": "#99a8b2", "read": "#99a8b2", "fill": "#c8d0d5",
               "boost": "#e07a5f", "nlohmann": "#f2b98f", "protobuf": "#81b29a"}
    parts, y = [], 30
    for workload in WORKLOADS:
        for direction, subjects in SUBJECTS.items():
            parts.append(f'<text x="10" y="{y + 12}" font-weight="bold">{workload}, {direction}</text>')
            for subject in subjects:
                value = ratio((workload, direction, subject))
                parts.append(f'<text x="{left - 8}" y="{y + 12}" text-anchor="end">{subject}</text>'
                             f'<rect x="{left}" y="{y}" width="{value * scale:.1f}" height="{bar - 3}" '
                             f'fill="{colours[subject]}"/>'
                             f'<text x="{left + value * scale + 5:.1f}" y="{y + 12}">{value:.2f}</text>')
                y += bar
            y += gap - bar
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{y + 10}" '
            'font-family="sans-serif" font-size="12"><rect width="100%" height="100%" fill="white"/>'
            '<text x="10" y="18">Time relative to the library (kiv = 1); shorter is faster</text>')
    return head + "\n" + "\n".join(parts) + "\n</svg>\n"


def main():
    times, telling, figures, machine, directory = sys.argv[1:]
    run = Run(times, telling, figures)
    lines, goals = page(run, machine)
    out = Path(directory)
    (out / "performance-table.md").write_text("\n".join(lines) + "\n")
    (out / "performance.svg").write_text(plot(run.times))
    results = {
        "machine": machine,
        "goals": [dict(zip(("figure", "goal", "measured", "relation"), row)) for row in goals],
        "nanoseconds": {"/".join(case): value for case, value in run.times.items()},
        "nanoseconds-telling": {"/".join(case): value for case, value in run.telling.items()},
        "figures": run.figures,
    }
    (out / "performance.json").write_text(json.dumps(results, indent=2) + "\n")
    print("\n".join(lines))


if __name__ == "__main__":
    main()
