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
CLASSES = ["CSpIDCDCT10NRegInfo", "CSPCRMWQ09RegInfo"]
TERMINAL = 10000


class Results:
    """The median of every benchmark by its name, in seconds, and what it counted."""

    def __init__(self, folder):
        times = collections.defaultdict(list)
        self.counted = {}
        for file in sorted(folder.glob("*.json")):
            for run in json.loads(file.read_text())["benchmarks"]:
                if run.get("run_type") == "aggregate":
                    continue
                if run.get("error_occurred"):
                    raise SystemExit(f"{run['name']}: {run['error_message']}")
                name = re.sub(r"/(iterations:\d+|real_time|manual_time)", "", run["name"])
                times[name].append(run["real_time"] * SECONDS[run["time_unit"]])
                self.counted[name] = run
        self.times = {name: statistics.median(all_of_it) for name, all_of_it in times.items()}

    def __getitem__(self, name):
        return self.times[name]


def time(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{significant(seconds / size)} {unit}"
    return f"{significant(seconds * 1e9)} ns"


def significant(number):
    return f"{number:,.0f}" if number >= 100 else f"{number:.1f}" if number >= 10 else f"{number:.2f}"


def answer(*parts):
    """Yes, or no with the parts that are not met; each part is (met, its name)."""
    missed = [name for met, name in parts if not met]
    return "**no**: " + ", ".join(missed) if missed else "yes"


def rows_to_text(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def load_row(results, class_name, values):
    base = f"Load/{class_name}/{values}/"
    limit, ours = results[base + "limit"], results[base + "WQSpCfg"]
    least = 5 if values else 2
    peers = {name: results[base + name] for name in ("SQLite", "GLib", "Boost", "per value")}
    ratio = ours / limit
    count = results.counted[base + "WQSpCfg"]
    work = f"`Load` of `{class_name}`, {count['values']:.0f} values, {count['lines']:.0f} lines; "
    return [
        work + (f"{values:,} other values in the store" if values else "nothing else in the store"),
        time(limit),
        time(ours),
        "; ".join(f"{name} {time(peer)} ({peer / ours:.1f}×)" for name, peer in peers.items()),
        f"{ratio:.2f}",
        f"≤ 1.3; each peer ≥ {least}×",
        answer((ratio <= 1.3, "limit"), *((peer / ours >= least, name) for name, peer in peers.items())),
    ]


def value_row(results, values):
    limit, ours = (results[f"Value/{values}/{who}"] for who in ("limit", "WQSpCfg"))
    ratio = ours / limit
    return [f"one value by full path, store of {values:,}", time(limit), time(ours), "–", f"{ratio:.2f}", "≤ 1.5",
            answer((ratio <= 1.5, "limit"))]


def save_row(results, class_name):
    base = f"Save/{class_name}/"
    limit, ours, each = (results[base + who] for who in ("limit", "WQSpCfg", "per value"))
    ratio = ours / limit
    return [
        f"`Save` of `{class_name}`, {results.counted[base + 'WQSpCfg']['values']:.0f} values, durable",
        time(limit), time(ours), f"a commit per value {time(each)} ({each / ours:.0f}×)", f"{ratio:.2f}",
        "≤ 1.3; a commit per value ≥ 10×", answer((ratio <= 1.3, "limit"), (each / ours >= 10, "per value")),
    ]  # fmt: skip


def start_row(results):
    limit, ours = (results[f"Start/1000000/{who}"] for who in ("limit", "WQSpCfg"))
    ratio = ours / limit
    return ["start to the end of `wqspcfg load`, store of 1,000,000 values", time(limit), time(ours), "–",
            f"{ratio:.2f}", "≤ 3", answer((ratio <= 3, "limit"))]


def transfer_row(results, what):
    small, large = (f"{what}/{values}/WQSpCfg" for values in (100000, 1000000))
    rate = 1e6 / results[large]
    counted = results.counted[large]
    memory = counted["peak"] / counted["size"]
    growth = results[large] / results[small]
    return [
        f"{what.lower()} of a `.reg` file of 1,000,000 values ({counted['size'] / 1e6:.0f} MB)", "–",
        f"{time(results[large])}: {rate:,.0f} values/s, memory {memory:.1f}× the file, {growth:.1f}× the time of 100,000",
        "–", "–", "≥ 500,000 values/s; memory ≤ 4×; linear",
        answer((rate >= 5e5, "speed"), (memory <= 4, "memory"), (growth <= 12, "linear")),
    ]  # fmt: skip


def windows_row(results, class_name):
    base = f"Windows/{class_name}/"
    limit, ours, each = (results[base + who] for who in ("limit", "WQSpCfg", "per value"))
    opens, keys = (results.counted[base + "WQSpCfg"][what] for what in ("opens", "keys"))
    return [
        f"`Load` of `{class_name}` from the registry of Wine; {keys} keys opened {opens} times",
        time(limit), time(ours), f"open, query and close per value {time(each)} ({each / ours:.1f}×)",
        f"{ours / limit:.2f}", "each key once; per value ≥ 3×",
        answer((opens == keys, "each key once"), (each / ours >= 3, "per value")),
    ]  # fmt: skip


def main_table(results, build):
    rows = [load_row(results, name, values) for name in CLASSES for values in (TERMINAL, 0)]
    rows += [value_row(results, 10**n) for n in range(3, 7)]
    rows += [save_row(results, name) for name in CLASSES]
    rows += [start_row(results), transfer_row(results, "Import"), transfer_row(results, "Export")]
    if f"Windows/{CLASSES[0]}/limit" in results.times:
        rows += [windows_row(results, name) for name in CLASSES]
    memory = results.counted["Footprint"]
    rows.append([
        f"memory of one loaded object of the largest class, `{memory['label']}`", "–",
        f"{memory['bytes']:,.0f} bytes, of which {memory['object']:,.0f} are the object itself "
        f"(median of {memory['classes']:.0f} classes: {memory['median']:,.0f})", "–", "–", "measured", "–",
    ])  # fmt: skip
    sizes = [(build / name).stat().st_size for name in ("bench_provider", "bench_provider_static")]
    rows.append([
        "size of a service provider of one model, stripped", "–",
        f"{sizes[0]:,} bytes with this library linked statically; {sizes[1]:,} with LMDB and the C++ and C libraries too",
        "–", "–", "measured", "–",
    ])  # fmt: skip
    return rows_to_text(["work", "limit", "WQSpCfg", "peers", "ratio", "target", "met"], rows)


def growth_tables(results):
    name = CLASSES[0]
    stores = [[f"{values:,}" if values else "0", time(results[f"Load/{name}/{values}/limit"]),
               time(results[f"Load/{name}/{values}/WQSpCfg"])]
              for values in (0, 1000, 10000, 100000, 1000000)]  # fmt: skip
    classes = []
    for full_name in results.times:
        match = re.fullmatch(rf"Load/(\w+)/{TERMINAL}/WQSpCfg", full_name)
        if match:
            counted = results.counted[full_name]
            ours = results[full_name]
            limit = results[full_name.replace("WQSpCfg", "limit")]
            classes.append([counted["values"], f"`{match[1]}`", *(f"{counted[what]:.0f}" for what in ("values", "keys", "lines")),
                            time(limit), time(ours), time(ours / counted["values"])])  # fmt: skip
    services = [[str(n), time(results[f"Services/{n}/WQSpCfg"]), time(results[f"Services/{n}/WQSpCfg"] / n)]
                for n in (1, 10, 100)]  # fmt: skip
    paths = [[f"{10**n:,}", *(time(results[f"Value/{10**n}/{who}"]) for who in ("limit", "limit, as records", "WQSpCfg"))]
             for n in range(3, 7)]  # fmt: skip
    starts = [[f"{values:,}", *(time(results[f"Start/{values}/{who}"]) for who in ("limit", "WQSpCfg"))]
              for values in (10000, 1000000)]  # fmt: skip
    parts = []
    for class_name in CLASSES:
        base = f"Load/{class_name}/{TERMINAL}/"
        parts.append([f"`{class_name}`", *(time(results[base + who]) for who in (
            "limit, reading", "limit, lines", "limit", "WQSpCfg", "GLib, parsed before", "Boost, parsed before"))])
    return {
        "stores": rows_to_text(["other values in the store", "limit", "WQSpCfg"], stores),
        "classes": rows_to_text(["class", "values", "keys", "lines", "limit", "WQSpCfg", "per value"],
                                [row[1:] for row in sorted(classes)]),
        "services": rows_to_text(["services in the store", "`Load` of all", "each"], services),
        "paths": rows_to_text(["values in the store", "limit", "limit, records of this library's size", "WQSpCfg"], paths),
        "starts": rows_to_text(["values in the store", "opens it and exits", "`wqspcfg load`"], starts),
        "parts": rows_to_text(["class", "`mdb_get` alone", "`swprintf` alone", "limit", "WQSpCfg",
                               "GLib, parsed before", "Boost, parsed before"], parts),
    }  # fmt: skip


def first_line(*command):
    try:
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()[0].strip()
    except (OSError, subprocess.CalledProcessError, IndexError):
        return ""


def machine(scratch):
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    memory = int(re.search(r"MemTotal:\s*(\d+)", pathlib.Path("/proc/meminfo").read_text())[1])
    system = re.search(r'PRETTY_NAME="(.*)"', pathlib.Path("/etc/os-release").read_text())
    packages = ["liblmdb0", "libsqlite3-0", "libglib2.0-0", "libboost-dev", "libbenchmark1debian", "wine64"]
    versions = ", ".join(
        f"{name} {version}" for name in packages if (version := first_line("dpkg-query", "-W", "-f", "${Version}", name))
    )
    rows = [
        ["processor", f"{cpu[1] if cpu else platform.machine()}, {os.cpu_count()} cores"],
        ["memory", f"{memory / 2**20:.0f} GiB"],
        ["file system of the stores", " ".join(first_line("findmnt", "-n", "-o", "FSTYPE,SOURCE,OPTIONS", "-T", scratch).split())],
        ["system", f"{system[1] if system else platform.system()}, Linux {platform.release()}"],
        ["compiler", f"{first_line('c++', '--version')}, -O2"],
        ["libraries", versions],
        ["revision", first_line("git", "describe", "--always", "--dirty")],
    ]  # fmt: skip
    return rows_to_text(["", ""], rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("results", type=pathlib.Path)
    parser.add_argument("--write", type=pathlib.Path, metavar="DOCUMENT")
    options = parser.parse_args()

    results = Results(options.results)
    scratch = os.environ.get("TMPDIR", str(options.results))
    sections = {
        "machine": machine(scratch),
        "table": main_table(results, options.results.parent / "release"),
        **growth_tables(results),
    }
    if options.write is None:
        print("\n\n".join(sections.values()))
        return
    text = options.write.read_text(encoding="utf-8")
    for name, section in sections.items():
        begin, end = f"<!-- bench:{name} -->\n", "\n<!-- bench:end -->"
        text, found = re.subn(re.escape(begin) + ".*?" + re.escape(end), lambda _: begin + section + end, text, flags=re.DOTALL)
        if found != 1:
            raise SystemExit(f"{options.write} has no place for {name}")
    options.write.write_text(text, encoding="utf-8")
    print(sections["table"])


if __name__ == "__main__":
    main()
