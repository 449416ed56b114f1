"""Prints the results of scripts/benchmark.sh as Markdown tables."""

import json
import re
import sys
from pathlib import Path


def load(folder, name):
    return json.loads((folder / f"{name}.json").read_text())


def benchmarks(folder, name):
    """Results by name, without what the library appends to it."""
    entries = load(folder, name)["benchmarks"]
    return {re.sub(r"/(min_time|iterations|manual_time).*", "", entry["name"]): entry for entry in entries}


def number(value):
    """Three significant digits, and all of those before the point."""
    return f"{value:,.0f}" if abs(value) >= 100 else f"{value:.3g}"


def table(title, header, rows):
    print(f"\n### {title}\n")
    print("| " + " | ".join(header) + " |")
    print("|---" + "|---:" * (len(header) - 1) + "|")
    for row in rows:
        print("| " + " | ".join(cell if isinstance(cell, str) else number(cell) for cell in row) + " |")


def paint_rows(paints, instructions):
    counts = {entry["name"]: entry for entry in instructions}
    for name, count in counts.items():
        kind, style = name.split("/style:")
        cells = []
        for size in (576, 1080, 2160):
            entry = paints[f"paint/{name}/px:{size}"]
            cells += [entry["us"], f"{entry['ratio']:.3f}"]
        yield [f"{kind}, style {style}", *cells, count["ours"] / 1e6, f"{count['ours'] / count['floor']:.4f}"]


def growth_rows(paints, clicks, programs):
    for count in (10, 100, 1000, 10000, 100000):
        cells = []
        for mode in ("section", "crack", "freeSection"):
            entry = paints[f"growth/{mode}/points:{count}"]
            cells += [entry["us"] / 1000, f"{entry['ratio']:.3f}"]
        program = programs[f"points/{count}"]
        yield [
            f"{count:,}",
            *cells,
            clicks[f"click/add/{count}"]["cpu_time"] / 1000,
            clicks[f"click/find/{count}"]["cpu_time"] / 1000,
            program["cpu_s"],
            program["peak_MB"],
        ]


UNITS = {"ns": 1e-3, "us": 1.0, "ms": 1e3}


def single_rows(results):
    """Operations with a control of their own, in microseconds."""
    pairs = [
        ("pick on the wall", "pick/wall", "pick/wall/control"),
        ("pick on the plane", "pick/plane", "pick/plane/control"),
        ("lateral of 80 % and 45° rebuilt", "lateral/rebuild/percent:80/degrees:45", "lateral/control/percent:80/degrees:45"),
        ("rear circle checked", "correction/inside", "correction/control"),
        ("rear circle corrected", "correction/outside", "correction/control"),
        ("361 points projected", "projectPoints", "projectPointsGlm"),
        ("64 matrix products", "product", "productGlm"),
        ("64 matrix inverses", "inverse", "inverseGlm"),
    ]
    for title, ours, control in pairs:
        times = [results[key]["cpu_time"] * UNITS[results[key]["time_unit"]] for key in (ours, control)]
        yield [title, *times, f"{times[0] / times[1]:.2f}"]


def program_rows(programs):
    for title, key in (
        ("zalento-measure --help", "help"),
        ("viewer, to its first frame", "viewerStart"),
        ("viewer, with a folder of 500 pictures", "openFolder/500"),
        ("zalento-measure, a picture with its overlay", "overlay"),
        ("convert, the overlay's lines on that picture", "convert"),
    ):
        entry = programs[key]
        yield [title, entry["real_time"], 1000 * entry["cpu_s"], entry["peak_MB"]]


def picture_rows(programs):
    for count in (1, 10, 100, 1000):
        entry = programs[f"pictures/{count}"]
        yield [f"{count:,}", entry["pictures_per_s"], count / entry["cpu_s"], entry["peak_MB"]]


def job_rows(programs):
    one = programs["overlays/1"]
    for jobs in (1, 2):
        entry = programs[f"overlays/{jobs}"]
        yield [str(jobs), entry["real_time"], f"{entry['real_time'] / one['real_time']:.2f}", entry["cpu_s"],
               entry["peak_MB"]]


FIELDS = ("offset", "cameraHeightPercent", "rearCircleX", "rearCircleY", "mouthPercent", "fovYDEG")


def trials(results, prefix):
    """The counters of runs of simulated operators, by the rest of their names."""
    return {
        name[len(prefix):].split("/")[0]: entry for name, entry in results.items() if name.startswith(prefix)
    }


def fit_rows(results):
    for name, entry in trials(results, "alignment/truth/").items():
        ratios = [entry[f"e/u {field}"] for field in FIELDS]
        time = results[f"alignment/time/{name}"]["cpu_time"]
        yield [name, entry["fitted%"], entry["length%"], *(f"{r:.2f}" if r else "" for r in ratios), time]


def uncertainty_rows(results):
    for name, entry in trials(results, "uncertainty/truth/").items():
        yield [name, f"{entry['covered%']:.1f}", f"{entry['e/u']:.2f}", entry["first-order%"],
               entry["agreeing%"], entry["U%"]]


def uncertainty_times(results):
    for title, key in (("first order", "first-order"), ("first order, checked", "checked"),
                       ("10,000 draws", "monte-carlo"), ("map of 240 pixels' width", "map")):
        yield [title, results[f"uncertainty/time/{key}"]["cpu_time"]]


def main():
    folder = Path(sys.argv[1])
    paints = benchmarks(folder, "bench_paint")
    programs = benchmarks(folder, "bench_programs")
    singles = {}
    for name in ("bench_picking", "bench_lateral", "bench_correction", "bench_curve", "bench_math"):
        singles.update(benchmarks(folder, name))

    table(
        "Paint",
        ["object", "576 px (µs)", "of floor", "1080 px (µs)", "of floor", "2160 px (µs)", "of floor",
         "10⁶ instructions, 1080 px", "of floor"],
        paint_rows(paints, load(folder, "instructions")),
    )
    table("Operations", ["operation", "µs", "control (µs)", "ratio"], single_rows(singles))
    overhead = benchmarks(folder, "bench_curve")["curveOverhead"]
    print(f"\nCurve and bare polyline in turns: {overhead['ratio']:.3f}")
    table(
        "Growth with the number of points",
        ["points", "section (ms)", "of floor", "crack (ms)", "of floor", "free section (ms)", "of floor",
         "click (µs)", "nearest point (µs)", "program, cpu (s)", "peak (MB)"],
        growth_rows(paints, benchmarks(folder, "bench_clicks"), programs),
    )
    table(
        "Alignment from clicks, 1,000 operators each",
        ["clicks", "fitted (%)", "median error of a length (%)", *(f"e/u {field}" for field in FIELDS),
         "a fit (ms)"],
        fit_rows(benchmarks(folder, "bench_alignmentfit")),
    )
    uncertainty = benchmarks(folder, "bench_uncertainty")
    table(
        "Uncertainty, 1,000 operators each",
        ["measured, aligned by", "covered (%)", "error over u", "first order holds (%)",
         "of these agreeing (%)", "median U (%)"],
        uncertainty_rows(uncertainty),
    )
    table("Uncertainty of a line of ten points", ["", "ms"], uncertainty_times(uncertainty))
    table("Programs", ["program", "ms", "processor (ms)", "peak (MB)"], program_rows(programs))
    table(
        "Growth with the number of pictures",
        ["pictures", "pictures/s", "pictures/s of processor time", "peak (MB)"],
        picture_rows(programs),
    )
    table(
        "1,000 pictures with their overlays",
        ["--jobs", "s", "of one job", "processor (s)", "peak (MB)"],
        job_rows(programs),
    )


if __name__ == "__main__":
    main()
