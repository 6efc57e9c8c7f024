"""A case folder: case.txt, input/, expected/ and counters.txt. README.md tells how they look."""

from dataclasses import dataclass, field
from datetime import datetime
from pathlib import Path

from .kinds import KINDS


@dataclass
class Case:
    folder: Path
    purpose: str = ""
    log: str = ""
    kind: str = ""  # of the log; empty: by its extension and content
    contest: str = ""
    status: int = 0
    settings: list[tuple[str, str]] = field(default_factory=list)
    times: dict[str, datetime] = field(default_factory=dict)  # of last writing, by path

    @property
    def input(self) -> Path:
        return self.folder / "input"

    @property
    def expected(self) -> Path:
        return self.folder / "expected"

    @property
    def counters(self) -> Path:
        return self.folder / "counters.txt"


def find_cases(root: Path) -> list[Path]:
    return sorted(path.parent for path in root.rglob("case.txt"))


def load_case(folder: Path) -> Case:
    case = Case(folder)
    text = (folder / "case.txt").read_text(encoding="utf-8")
    for number, line in enumerate(text.splitlines(), 1):
        if not line.strip():
            continue
        key, colon, value = line.partition(":")
        value = value.strip()
        if key == "purpose":
            case.purpose = value
        elif key == "set" and "=" in value:
            # The value may hold a "=" of its own: lblRmks1(0)=memo=
            name, _, setting = value.partition("=")
            case.settings.append((name, setting))
        elif key == "log":
            case.log = value
        elif key == "kind" and value in KINDS:
            case.kind = value
        elif key == "contest":
            case.contest = value
        elif key == "status":
            case.status = int(value)
        elif key == "time":
            # The path may hold blanks, the time holds one.
            path, date, time = value.rsplit(" ", 2)
            case.times[path] = datetime.strptime(f"{date} {time}", "%Y-%m-%d %H:%M:%S")
        else:
            raise ValueError(f"case.txt line {number} is not understood: {line}")

    if not case.purpose:
        raise ValueError("case.txt has no purpose")
    if not (case.input / case.log).is_file():
        raise ValueError(f"case.txt names the log '{case.log}', which is not below input/")
    for path in case.times:
        if not (case.input / path).is_file():
            raise ValueError(f"case.txt gives a time to '{path}', which is not below input/")
    return case
