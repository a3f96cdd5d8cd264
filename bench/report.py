#!/usr/bin/env python3
"""Makes the table, the JSON and the plot of a benchmark run.

report.py TIMES FIGURES MACHINE DIRECTORY

TIMES is what Google Benchmark wrote, FIGURES holds one "name value" a line, MACHINE is a text. The
table goes to the output as well.
"""

import json
import statistics
import sys
from pathlib import Path

WORKLOADS = ["stations", "locations", "calls", "contexts"]
# From the platform's tree to typed objects and back to it.
SUBJECTS = {
    "serialize": ["kiv", "build", "boost", "nlohmann", "protobuf"],
    "deserialize": ["kiv", "read", "fill", "boost", "nlohmann", "protobuf"],
}
PEERS = ["boost", "nlohmann", "protobuf"]
# From and to what is each peer's own: its tree, or its bytes.
OWN = {direction: ["kiv"] + [peer + "-own" for peer in PEERS] for direction in SUBJECTS}


def load_times(path):
    """Median nanoseconds for each element, by (workload, direction, subject)."""
    rounds = {}
    for run in json.loads(Path(path).read_text())["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        case = tuple(run["run_name"].split("/")[:3])
        scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
        rounds.setdefault(case, []).append(run["real_time"] * scale / run["elements"])
    spread = {case: (max(times) - min(times)) / statistics.median(times) for case, times in rounds.items()}
    return {case: statistics.median(times) for case, times in rounds.items()}, spread


def load_figures(path):
    lines = (line.split() for line in Path(path).read_text().splitlines())
    return {name: float(value) for name, value in lines}


def goals(times, figures):
    """Rows of (figure, goal, measured, "<=" for at most or ">=" for at least)."""

    def time_ratio(workload, direction, other):
        return times[workload, direction, "kiv"] / times[workload, direction, other]

    rows = []
    for workload in ["stations", "locations"]:
        for direction, other, limit in [("deserialize", "read", 1.20), ("serialize", "build", 1.03)]:
            rows.append((f"{direction}, time over {other}, {workload}", limit,
                         time_ratio(workload, direction, other), "<="))
            counted = lambda subject: figures[f"instructions/{workload}/{direction}/{subject}"]
            rows.append((f"{direction}, instructions over {other}, {workload}", limit,
                         counted("kiv") / counted(other), "<="))
    for workload in WORKLOADS:
        for direction in SUBJECTS:
            for other, limit in [("boost", 0.4), ("nlohmann", 0.4), ("protobuf", 1.0)]:
                rows.append((f"{direction}, time over {other}, {workload}", limit,
                             time_ratio(workload, direction, other), "<="))
    for workload in WORKLOADS:
        allocated = lambda way: figures[f"allocations/{workload}/{way}"]
        rows.append((f"serialize, allocations an element beyond build, {workload}", 0,
                     round(allocated("serialize/kiv") - allocated("serialize/build"), 2), "<="))
        rows.append((f"deserialize, allocations an element beyond read and a buffer for each element "
                     f"with a long key, {workload}", 0,
                     round(allocated("deserialize/kiv") - allocated("deserialize/read")
                           - allocated("deserialize/buffers"), 2), "<="))
        held = lambda subject: figures[f"held/{workload}/deserialize/{subject}"]
        rows.append((f"deserialize, bytes an element holds beyond read, {workload}", 0,
                     held("kiv") - held("read"), "<="))
    rows += [
        ("stripped library, bytes", 2_400_000, figures["size/kiv"], "<="),
        ("symbolic data relocations", 850, figures["symbolic-relocations/kiv"], "<="),
        ("nesting in 8 MB of stack, in", 28_000, figures["depth/in"], ">="),
        ("nesting in 8 MB of stack, out", 55_000, figures["depth/out"], ">="),
        ("nesting in 8 MB of stack, freed", 100_000, figures["depth/freed"], ">="),
    ]
    if "memory-loaded/protobuf" in figures:
        for state in ["loaded", "used"]:
            mine = figures[f"memory-{state}/kiv"]
            rows.append((f"memory written by a process, library {state}, kB", 80, mine, "<="))
            rows.append((f"memory written by a process, library {state}, over the protobuf library's",
                         0.3, mine / figures[f"memory-{state}/protobuf"], "<="))
    optional = [
        ("start-up, instructions over the protobuf library's", 0.07, "startup-instructions", "<="),
        ("start-up, processor time over the protobuf library's", 0.07, "startup-time", "<="),
        ("full build, two jobs, processor time over the protobuf library's", 0.8, "build-worked-ratio", "<="),
        ("build without a change, seconds", 1, "build-unchanged", "<="),
        ("build with one definition touched, seconds", 5, "build-touched", "<="),
    ]
    rows += [(what, limit, figures[name], way) for what, limit, name, way in optional if name in figures]
    return rows


def text_of(number):
    if number is None:
        return ""
    return f"{number:,.0f}" if number >= 1000 or number == int(number) else f"{number:.3f}"


def goal_table(rows):
    lines = ["| figure | goal | measured | |", "|---|---|---|---|"]
    for what, limit, measured, way in rows:
        met = measured <= limit if way == "<=" else measured >= limit
        lines.append(f"| {what} | {way} {text_of(limit)} | {text_of(measured)} "
                     f"| {'met' if met else 'missed'} |")
    return lines


def case_table(all_subjects, times, spread, figures):
    lines = ["| document | direction | subject | ns an element | kiv over it | spread of rounds "
             "| allocations | instructions |", "|---|---|---|---|---|---|---|---|"]
    for workload in WORKLOADS:
        for direction, subjects in all_subjects.items():
            for subject in subjects:
                case = (workload, direction, subject)
                name = "/".join(case)
                lines.append(
                    f"| {workload} | {direction} | {subject} | {times[case]:,.0f} "
                    f"| {times[workload, direction, 'kiv'] / times[case]:.2f} | {spread[case]:.0%} "
                    f"| {text_of(figures.get('allocations/' + name))} "
                    f"| {text_of(figures.get('instructions/' + name))} |")
    return lines


def size_table(times):
    lines = ["| elements | serialize, ns an element | deserialize, ns an element |", "|---|---|---|"]
    for elements in [10, 1000, 100_000, 1_000_000]:
        cells = [f"{times[f'size{elements}', direction, 'kiv']:.0f}" for direction in SUBJECTS]
        lines.append(f"| {elements:,} | {' | '.join(cells)} |")
    return lines


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
    times_path, figures_path, machine, directory = sys.argv[1:]
    times, spread = load_times(times_path)
    figures = load_figures(figures_path)
    rows = goals(times, figures)
    lines = [machine, ""] + goal_table(rows) + [""] + case_table(SUBJECTS, times, spread, figures)
    lines += ["", "From and to the peers' own trees, or bytes:", ""] + case_table(OWN, times, spread, figures)
    lines += [""] + size_table(times)
    out = Path(directory)
    (out / "performance-table.md").write_text("\n".join(lines) + "\n")
    (out / "performance.svg").write_text(plot(times))
    results = {
        "machine": machine,
        "goals": [dict(zip(("figure", "goal", "measured", "relation"), row)) for row in rows],
        "nanoseconds": {"/".join(case): value for case, value in times.items()},
        "figures": figures,
    }
    (out / "performance.json").write_text(json.dumps(results, indent=2) + "\n")
    print("\n".join(lines))


if __name__ == "__main__":
    main()
