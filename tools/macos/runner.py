"""Which files a check reads, and how several of them are checked at once, each again only
when something that it reads has changed."""

import argparse
import concurrent.futures
import json
import os
import pathlib
import shutil
import subprocess
import sys

import compiler


def sources(paths):
    """The files themselves, and every source in the folders."""
    found = []
    for path in map(pathlib.Path, paths):
        found += sorted(f for f in path.iterdir() if f.suffix in (".mm", ".cpp")) if path.is_dir() else [path]
    return found


def run(command):
    """(passes, what it printed)"""
    done = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.returncode == 0, done.stdout


def _state(files):
    return {str(file): [os.stat(file).st_mtime_ns, os.stat(file).st_size] for file in files}


def _is_unchanged(record, command):
    try:
        known = json.loads(record.read_text(encoding="utf-8"))
        return known["command"] == command and known["files"] == _state(known["files"])
    except (OSError, ValueError, KeyError):
        return False


def compile(command, path, build, kind, output=""):
    """Runs one of clang's commands on the path. What passed without a word is remembered, and
    not done again until a file that it read, or the output, has changed."""
    place = compiler.place(path, build, kind)
    place.parent.mkdir(parents=True, exist_ok=True)
    record, read = place.with_name(place.name + ".json"), place.with_name(place.name + ".d")
    command = [*command, "-MD", "-MF", str(read)]
    if _is_unchanged(record, command):
        return True, ""
    record.unlink(missing_ok=True)
    passes, printed = run(command)
    if passes and not printed:
        files = read.read_text(encoding="utf-8").split(":", 1)[1].replace("\\\n", " ").split()
        files += [shutil.which(compiler.CLANG), *([output] if output else [])]
        record.write_text(json.dumps({"command": command, "files": _state(files)}), encoding="utf-8")
    # The analyser warns with status 0.
    return passes and not printed, printed


def each(check, paths, build):
    """[(path, passes, output)] of check(path, build)"""
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return [(path, *result) for path, result in zip(paths, pool.map(lambda path: check(path, build), paths))]


def arguments(documentation):
    parser = argparse.ArgumentParser(description=documentation, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("paths", nargs="+", metavar="FILE-OR-FOLDER")
    parser.add_argument("--build", default=compiler.BUILD, help="the folder of a build, build/dev by default")
    return parser


def main(name, documentation, check):
    """A whole program: the exit status of the check of every source in the arguments."""
    chosen = arguments(documentation).parse_args()
    try:
        compiler.require()
        files = sources(chosen.paths)
        if not files:
            raise compiler.Missing(f"no sources in {', '.join(chosen.paths)}")
        results = each(check, files, chosen.build)
    except (compiler.Missing, OSError) as problem:
        print(f"{name}: {problem}", file=sys.stderr)
        return 2
    failed = [(path, output) for path, passes, output in results if not passes]
    for path, output in failed:
        print(output or f"{path}: failed without a word", file=sys.stderr)
    print(f"{name}: {len(files)} files, {len(failed)} with findings")
    return 1 if failed else 0
