#!/usr/bin/env python3
"""Makes and checks the expected files of the golden cases, from the rules in rules/ alone.

    reference.py write CASE_DIR...   makes expected/ of these cases anew
    reference.py check [ROOT]        computes every case below ROOT again and compares

`check` takes the folder cases/ beside this script when no ROOT is given. Its exit status is 1 when
a file differs, is missing or is too much.
"""

import argparse
import shutil
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from rules.case import Case, find_cases, load_case  # noqa: E402
from rules.disk import load_tree  # noqa: E402
from rules.run import Outcome, run  # noqa: E402

CASES = Path(__file__).resolve().parent / "cases"


def compute(folder: Path) -> tuple[Case, Outcome]:
    case = load_case(folder)
    outcome = run(case)
    if outcome.status != case.status:
        raise ValueError(f"case.txt says status {case.status}, the rules give {outcome.status}")
    return case, outcome


def write_case(folder: Path) -> None:
    case, outcome = compute(folder)
    if case.expected.exists():
        shutil.rmtree(case.expected)
    for name, raw in outcome.files.items():
        path = case.expected / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(raw)
    # Only a run that came to its end shows its counters.
    case.counters.unlink(missing_ok=True)
    if outcome.counters:
        case.counters.write_bytes(outcome.counters.encode())


def check_case(folder: Path) -> list[str]:
    """What is wrong with the expectations of a case, a line each."""
    case, outcome = compute(folder)
    found = load_tree(case.expected)
    complaints = []
    for name in sorted(found.keys() | outcome.files.keys()):
        if name not in found:
            complaints.append(f"expected/{name} is missing")
        elif name not in outcome.files:
            complaints.append(f"expected/{name} is not written by the rules")
        elif found[name] != outcome.files[name]:
            at = first_difference(found[name], outcome.files[name])
            complaints.append(f"expected/{name} differs from the rules at byte {at}")
    counters = case.counters.read_bytes() if case.counters.exists() else b""
    if counters != outcome.counters.encode():
        complaints.append("counters.txt differs from the rules")
    return complaints


def first_difference(one: bytes, other: bytes) -> int:
    """The offset of the first byte that differs, counted from 0."""
    for at, (a, b) in enumerate(zip(one, other)):
        if a != b:
            return at
    return min(len(one), len(other))


def write(folders: list[Path]) -> int:
    for folder in folders:
        write_case(folder)
    print(f"{len(folders)} cases written")
    return 0


def check(root: Path) -> int:
    folders = find_cases(root)
    failed = 0
    for folder in folders:
        try:
            complaints = check_case(folder)
        except ValueError as error:
            complaints = [str(error)]
        for complaint in complaints:
            print(f"{folder.relative_to(root)}: {complaint}", file=sys.stderr)
        failed += bool(complaints)
    print(f"{len(folders)} cases checked, {failed} failed")
    return 1 if failed or not folders else 0


def main() -> int:
    parser = argparse.ArgumentParser(description="expected files of the golden cases")
    commands = parser.add_subparsers(dest="command", required=True)
    writing = commands.add_parser("write", help="make the expectations of cases anew")
    writing.add_argument("cases", type=Path, nargs="+", metavar="CASE_DIR")
    checking = commands.add_parser("check", help="compute every case again and compare")
    checking.add_argument("root", type=Path, nargs="?", default=CASES, metavar="ROOT")
    arguments = parser.parse_args()
    if arguments.command == "write":
        return write(arguments.cases)
    return check(arguments.root)


if __name__ == "__main__":
    sys.exit(main())
