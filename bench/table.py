#!/usr/bin/env python3
"""Makes the tables of docs/performance.md from the results of bench/run.

    bench/table.py RESULTS [--write DOCUMENT]

Prints them, or puts them into the document, each between its marks <!-- bench:NAME --> and <!-- bench:end -->.
"""
import argparse
import collections
import json
import os
import pathlib
import platform
import re
import statistics
import subprocess

SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
# What only computes is told in processor time, which other programs on the machine disturb less.
PROCESSOR_TIME = ("Load/", "Services/", "Value/", "Examine/", "Exports/")
CLASSES = ["CSpIDCDCT10NRegInfo", "CSPCRMWQ09RegInfo"]
TERMINAL = 10000
PEERS = ["SQLite", "GLib", "Boost", "per value"]


class Results:
    """The time of every benchmark in seconds by its name, and what it counted."""

    def __init__(self, folder):
        times = collections.defaultdict(list)
        self.counted = {}
        for file in sorted(folder.glob("*.json")):
            for run in json.loads(file.read_text(encoding="utf-8"))["benchmarks"]:
                if run.get("error_occurred"):
                    raise SystemExit(f"{run['name']}: {run['error_message']}")
                if run.get("run_type") != "aggregate":
                    name = re.sub(r"/(iterations:\d+|real_time|manual_time)", "", run["name"])
                    clock = "cpu_time" if name.startswith(PROCESSOR_TIME) else "real_time"
                    times[name].append(run[clock] * SECONDS[run["time_unit"]])
                    self.counted[name] = run
        # What else the machine does only adds to what computes; where a disk or a process takes part, luck does too.
        self.times = {
            name: min(repetitions) if name.startswith(PROCESSOR_TIME) else statistics.median(repetitions)
            for name, repetitions in times.items()
        }

    def of(self, work, *readers):
        return [self.times[f"{work}/{reader}"] for reader in readers]


def significant(number):
    return f"{number:,.0f}" if number >= 100 else f"{number:.1f}" if number >= 10 else f"{number:.2f}"


def time(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{significant(seconds / size)} {unit}"
    return f"{significant(seconds * 1e9)} ns"


def table(head, rows):
    return "\n".join("| " + " | ".join(cells) + " |" for cells in [head, ["---"] * len(head), *rows])


def row(work, target, checks, ours, limit=None, peers=""):
    """`checks` tells of each part of the target whether it is met; None where there is no target."""
    missed = [name for name, met in (checks or {}).items() if not met]
    return [
        work,
        time(limit) if limit else "–",
        ours if isinstance(ours, str) else time(ours),
        peers or "–",
        f"{ours / limit:.2f}" if limit else "–",
        target,
        "–" if checks is None else "**no**: " + ", ".join(missed) if missed else "yes",
    ]


def load_row(results, class_name, values):
    work = f"Load/{class_name}/{values}"
    limit, ours = results.of(work, "limit", "WQSpCfg")
    peers = dict(zip(PEERS, results.of(work, *PEERS)))
    counted = results.counted[work + "/WQSpCfg"]
    least = 5 if values else 2
    return row(
        f"`Load` of `{class_name}`, {counted['values']:.0f} values, {counted['lines']:.0f} lines; "
        + (f"{values:,} other values in the store" if values else "no other value in the store"),
        f"≤ 1.3; each peer ≥ {least}×",
        {"limit": ours <= 1.3 * limit, **{name: peer >= least * ours for name, peer in peers.items()}},
        ours,
        limit,
        "; ".join(f"{name} {time(peer)} ({peer / ours:.1f}×)" for name, peer in peers.items()),
    )


def value_row(results, values):
    limit, ours = results.of(f"Value/{values}", "limit", "WQSpCfg")
    return row(f"one value by full path, store of {values:,}", "≤ 1.5", {"limit": ours <= 1.5 * limit}, ours, limit)


def save_row(results, class_name):
    work = f"Save/{class_name}"
    limit, ours, each = results.of(work, "limit", "WQSpCfg", "per value")
    return row(
        f"`Save` of `{class_name}`, {results.counted[work + '/WQSpCfg']['values']:.0f} values, durable",
        "≤ 1.3; a commit per value ≥ 10×",
        {"limit": ours <= 1.3 * limit, "per value": each >= 10 * ours},
        ours,
        limit,
        f"a raw commit per value {time(each)} ({each / ours:.0f}×)",
    )


def unchanged_save_row(results, class_name):
    work = f"Save/{class_name}"
    every, own = results.of(work, "unchanged", "unchanged, own changes")
    return row(
        f"`Save` of `{class_name}` when nothing has changed",
        "measured",
        None,
        f"{time(every)}; under `SavePolicy::OwnChanges` {time(own)}",
    )


def start_row(results):
    limit, ours = results.of("Start/1000000", "limit", "WQSpCfg")
    return row(
        "start to end of `wqspcfg load`, store of 1,000,000 values", "≤ 3", {"limit": ours <= 3 * limit}, ours, limit
    )


def transfer_row(results, what):
    (small,), (large,) = (results.of(f"{what}/{values}", "WQSpCfg") for values in (100000, 1000000))
    counted = results.counted[f"{what}/1000000/WQSpCfg"]
    memory = counted["peak"] / counted["size"]
    return row(
        f"{what.lower()} of a `.reg` file of 1,000,000 values ({counted['size'] / 1e6:.0f} MB)",
        "≥ 500,000 values/s; memory ≤ 4×; linear",
        {"speed": 1e6 / large >= 5e5, "memory": memory <= 4, "linear": large <= 12 * small},
        f"{time(large)}: {1e6 / large:,.0f} values/s; peak memory {memory:.1f}× the file; "
        f"{large / small:.1f}× the time of 100,000 values",
    )


def disk_row(results):
    (ours,) = results.of("Disk", "WQSpCfg")
    counted = results.counted["Disk/WQSpCfg"]
    return row(
        f"`wqspcfg services` from a terminal's disk, whose hive has 201,000 keys ({counted['size'] / 1e6:.0f} MB)",
        "≤ 1 s",
        {"time": ours <= 1},
        f"{time(ours)}; peak memory {counted['peak'] / counted['size']:.1f}× the file",
    )


def diagnosis_rows(results):
    def against(work, what, most):
        limit, ours = results.of(work, "limit", "WQSpCfg")
        return row(what, f"≤ {most}", {"limit": ours <= most * limit}, ours, limit)

    exports = results.counted["Exports/WQSpCfg"]
    each = results.times["Exports/WQSpCfg"]
    return [
        against("Explain", "start to end of `wqspcfg explain` of a service, beside `wqspcfg load`", 2),
        against("Check", "start to end of `wqspcfg check` of the example terminal, beside a program that loads all its services", 3),
        row(
            f"1,000 registry exports of {exports['values']:,.0f} values opened and checked",
            "≥ 100 a second; memory flat",
            {"speed": each <= 0.01, "memory": exports["growth"] < 2**20},
            f"{1 / each:.0f} a second; memory grows by {max(exports['growth'], 0) / 1024:.0f} KiB",
        ),
    ]


def windows_row(results, class_name):
    work = f"Windows/{class_name}"
    limit, ours, each = results.of(work, "limit", "WQSpCfg", "per value")
    counted = results.counted[work + "/WQSpCfg"]
    return row(
        f"`Load` of `{class_name}` from Wine's registry: {counted['opens']} calls open {counted['keys']} keys",
        "each key once; per value ≥ 3×",
        {"each key once": counted["opens"] == counted["keys"], "per value": each >= 3 * ours},
        ours,
        limit,
        f"open, query, close per value {time(each)} ({each / ours:.1f}×)",
    )


def comparison(results, programs):
    rows = [load_row(results, name, values) for name in CLASSES for values in (TERMINAL, 0)]
    rows += [value_row(results, 10**n) for n in range(3, 7)]
    rows += [save_row(results, name) for name in CLASSES]
    rows += [unchanged_save_row(results, name) for name in CLASSES]
    rows += [start_row(results), transfer_row(results, "Import"), transfer_row(results, "Export")]
    rows += diagnosis_rows(results)
    if "Disk/WQSpCfg" in results.times:
        rows.append(disk_row(results))
    if any(name.startswith("Windows/") for name in results.times):
        rows += [windows_row(results, name) for name in CLASSES]
    memory = results.counted["Footprint"]
    rows.append(
        row(
            f"memory of one loaded object of the largest class, `{memory['label']}`",
            "measured",
            None,
            f"{memory['bytes']:,.0f} bytes, {memory['object']:,.0f} of them the object itself; "
            f"median of {memory['classes']:.0f} classes {memory['median']:,.0f}",
        )
    )
    sizes = [(programs / name).stat().st_size for name in ("bench_provider", "bench_provider_static")]
    rows.append(
        row(
            "size of a service provider of one model, stripped",
            "measured",
            None,
            f"{sizes[0]:,} bytes with this library in it; {sizes[1]:,} with LMDB and the C and C++ libraries too",
        )
    )
    return table(["work", "limit", "WQSpCfg", "peers", "ratio", "target", "met"], rows)


def growth(results):
    def times(work, *readers):
        return [time(seconds) for seconds in results.of(work, *readers)]

    classes = []
    for name in results.times:
        match = re.fullmatch(rf"Load/(\w+)/{TERMINAL}/WQSpCfg", name)
        if match:
            counted = results.counted[name]
            counts = [f"{counted[what]:.0f}" for what in ("values", "keys", "lines")]
            classes.append([f"`{match[1]}`", *counts, *times(name.removesuffix("/WQSpCfg"), "limit", "WQSpCfg")])
    classes.sort(key=lambda cells: int(cells[1]))

    parts = ["limit, reading", "limit, lines", "limit", "WQSpCfg", "GLib, parsed before", "Boost, parsed before"]
    return {
        "parts": table(
            ["class", "`mdb_get` alone", "`swprintf` alone", *parts[2:]],
            [[f"`{name}`", *times(f"Load/{name}/{TERMINAL}", *parts)] for name in CLASSES],
        ),
        "stores": table(
            ["other values in the store", "limit", "WQSpCfg"],
            [
                [f"{values:,}", *times(f"Load/{CLASSES[0]}/{values}", "limit", "WQSpCfg")]
                for values in (0, 1000, 10000, 100000, 1000000)
            ],
        ),
        "classes": table(["class", "values", "keys", "lines", "limit", "WQSpCfg"], classes),
        "services": table(
            ["services in the store", "`Load` of all", "each"],
            [
                [str(n), time(results.times[f"Services/{n}/WQSpCfg"]), time(results.times[f"Services/{n}/WQSpCfg"] / n)]
                for n in (1, 10, 100)
            ],
        ),
        "paths": table(
            ["values in the store", "limit", "limit, records as large", "WQSpCfg"],
            [[f"{10**n:,}", *times(f"Value/{10**n}", "limit", "limit, as records", "WQSpCfg")] for n in range(3, 7)],
        ),
        "starts": table(
            ["values in the store", "opens it and exits", "`wqspcfg load`"],
            [[f"{values:,}", *times(f"Start/{values}", "limit", "WQSpCfg")] for values in (10000, 1000000)],
        ),
    }


def shared_library(programs):
    rows = []
    os.sync()  # what is not on the disk yet would count as changed
    for form, program, file in (
        ("shared library", "bench_provider_memory_shared", (programs / "libWQSpCfg.so").resolve().name),
        ("static library, in the program", "bench_provider_memory", "bench_provider_memory"),
    ):
        image = programs / file
        relocations = subprocess.run(["readelf", "-rW", image], capture_output=True, text=True, check=True).stdout
        dirty = subprocess.run([programs / program, file], capture_output=True, text=True, check=True).stdout
        pages, tables = map(int, dirty.split())
        rows.append([form, f"{relocations.count('_RELATIVE'):,}", f"{pages} KiB", f"{tables / 1024:.0f} KiB"])
    return table(["form", "relative relocations", "changed pages after a `Load`", "tables in memory"], rows)


def output(*command):
    """The first line that a command prints; empty when there is none."""
    try:
        lines = subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()
    except (OSError, subprocess.CalledProcessError):
        return ""
    return " ".join(lines[0].split()) if lines else ""


def machine(scratch):
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    memory = re.search(r"MemTotal:\s*(\d+)", pathlib.Path("/proc/meminfo").read_text())
    system = re.search(r'PRETTY_NAME="(.*)"', pathlib.Path("/etc/os-release").read_text())
    packages = ["liblmdb0", "libsqlite3-0", "libglib2.0-0", "libboost-dev", "libbenchmark1debian", "wine64"]
    versions = {name: output("dpkg-query", "-W", "-f", "${Version}", name) for name in packages}
    rows = [
        ["processor", f"{cpu[1] if cpu else platform.machine()}, {os.cpu_count()} cores"],
        ["memory", f"{int(memory[1]) / 2**20:.0f} GiB"],
        ["file system of the stores", output("findmnt", "-n", "-o", "FSTYPE,SOURCE,OPTIONS", "-T", scratch)],
        ["system", f"{system[1] if system else platform.system()}, Linux {platform.release()}"],
        ["compiler", output("c++", "--version") + ", -O2"],
        ["packages", ", ".join(f"{name} {version}" for name, version in versions.items() if version)],
        ["revision", output("git", "describe", "--always", "--dirty")],
    ]
    return table(["", ""], rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("results", type=pathlib.Path)
    parser.add_argument("--write", type=pathlib.Path, metavar="DOCUMENT")
    options = parser.parse_args()

    results = Results(options.results)
    sections = {
        "machine": machine(os.environ.get("TMPDIR", options.results)),
        "table": comparison(results, options.results.parent / "release"),
        **growth(results),
        "shared": shared_library(options.results.parent / "release"),
    }
    if options.write is None:
        print("\n\n".join(sections.values()))
        return
    text = options.write.read_text(encoding="utf-8")
    for name, section in sections.items():
        begin, end = f"<!-- bench:{name} -->\n", "<!-- bench:end -->"
        pattern = re.compile(re.escape(begin) + ".*?" + re.escape(end), re.DOTALL)
        text, found = pattern.subn(lambda _: begin + section + "\n" + end, text)
        if found != 1:
            raise SystemExit(f"{options.write} has no place for {name}")
    options.write.write_text(text, encoding="utf-8")
    print(sections["table"])


if __name__ == "__main__":
    main()
