#!/usr/bin/env python3
"""Runs the tests of the real program on real X servers, two at a time, and tells one line for each.

    tests/desktop/run_desktop_tests.py [-j N] [part of a name ...]

QUILLMERE_BUILD names the build folder whose bin/ holds the programs; "build" when it is not set. A failed
test leaves a picture of its screen in desktop-failures there. The exit code is 0 when nothing failed.
"""

import argparse
import concurrent.futures
import os
import re
import signal
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
LONGEST = 300  # seconds for one test; beyond that it hangs
OK, FAILED, SKIPPED = 0, 1, 77


def test_names(suite):
    for item in suite:
        if isinstance(item, unittest.TestSuite):
            yield from test_names(item)
        else:
            yield item.id()


def sentence(name):
    """test_dock.OnOpenbox.test_comes_out -> "dock, on openbox: comes out"."""
    module, group, test = (name.split(".") + ["", ""])[:3]
    group = re.sub(r"(?<=[a-z0-9])(?=[A-Z])", " ", group).lower()
    return "%s, %s: %s" % (module.removeprefix("test_").replace("_", " "), group,
                           test.removeprefix("test_").replace("_", " "))


def run_one(name):
    """In the process of its own that a test gets."""
    result = unittest.TestResult()
    unittest.defaultTestLoader.loadTestsFromName(name).run(result)
    for _, text in result.errors + result.failures:
        print(text)
    if not result.wasSuccessful():
        return FAILED
    for _, reason in result.skipped:
        print(reason)
    return SKIPPED if result.skipped else OK


def run_apart(name):
    process = subprocess.Popen([sys.executable, "-B", os.path.abspath(__file__), "--one", name],
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True)
    try:
        text = process.communicate(timeout=LONGEST)[0].decode("utf-8", "replace")
        return name, process.returncode, text
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)  # what it started dies with it
        return name, FAILED, process.communicate()[0].decode("utf-8", "replace") + "hung\n"


def tell(name, code, text):
    words = {OK: "ok", SKIPPED: "skipped"}
    print("%-7s %s" % (words.get(code, "FAILED"), sentence(name)), flush=True)
    if code not in words:
        print("        " + name)
        print("        " + text.strip().replace("\n", "\n        "), flush=True)


def run_all(names, jobs):
    codes = []
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for done in concurrent.futures.as_completed([pool.submit(run_apart, name) for name in names]):
            tell(*done.result())
            codes.append(done.result()[1])
    skipped, passed = codes.count(SKIPPED), codes.count(OK)
    failed = len(codes) - passed - skipped
    if skipped:
        print("%d skipped" % skipped)
    print("%d passed, %d failed" % (passed, failed))
    return 1 if failed or not codes else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("-j", "--jobs", type=int, default=2)
    parser.add_argument("--one", help=argparse.SUPPRESS)
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()
    sys.path.insert(0, HERE)
    if options.one:
        return run_one(options.one)
    names = list(test_names(unittest.defaultTestLoader.discover(HERE, "test_*.py")))
    wanted = [name for name in names if not options.names or any(part in name for part in options.names)]
    return run_all(wanted, options.jobs)


if __name__ == "__main__":
    sys.exit(main())
