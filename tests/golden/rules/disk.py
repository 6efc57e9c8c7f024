"""The files of a run, in memory: drive C: as a dictionary from path to bytes.

Paths are relative to the root of the drive, with forward slashes.
"""

from datetime import datetime
from pathlib import Path

from . import sjis


class ProgramEnd(Exception):
    """What ends the program in the middle of a run."""


class RunTimeFailure(ProgramEnd):
    """What ends a run in the error report. The number is the one that the report shows."""

    def __init__(self, number: int):
        super().__init__(f"run-time failure {number}")
        self.number = number


INVALID_CALL = 5
OUT_OF_RANGE = 9
TYPE_MISMATCH = 13
NO_SUCH_FILE = 53
PAST_THE_END = 62
NO_SUCH_FOLDER = 76


class Drive(dict[str, bytes]):
    """All files of the drive by their paths, the folders that stand on it, and known file times."""

    def __init__(
        self, files: dict[str, bytes], more_folders: list[str], times: dict[str, datetime]
    ):
        super().__init__(files)
        self._times = times
        self._folders = {""}
        for path in [*files, *more_folders]:
            parts = path.split("/")
            self._folders.update("/".join(parts[:depth]) + "/" for depth in range(1, len(parts)))

    def has_folder(self, folder: str) -> bool:
        return folder in self._folders

    def find(self, path: str) -> str | None:
        """The name of a file as it stands on the drive: case does not count."""
        return next((name for name in self if name.lower() == path.lower()), None)

    def lines_of(self, path: str) -> list[str]:
        return read_lines(self.bytes_of(path))

    def bytes_of(self, path: str) -> bytes:
        name = self.find(path)
        if name is None:
            raise RunTimeFailure(NO_SUCH_FILE)
        return self[name]

    def time_of(self, path: str) -> datetime:
        """When a file that is there was written last."""
        name = self.find(path)
        if name not in self._times:
            raise ValueError(f"give {path} a time: without it the result changes with the day")
        return self._times[name]

    def delete(self, *paths: str) -> None:
        for path in paths:
            self.pop(path, None)


def load_tree(root: Path) -> dict[str, bytes]:
    return {
        path.relative_to(root).as_posix(): path.read_bytes()
        for path in sorted(root.rglob("*"))
        if path.is_file()
    }


def folder_of(path: str) -> str:
    """The folder of a path with its trailing slash; empty for the root."""
    return path[: path.rfind("/") + 1]


def files_in(files: dict[str, bytes], folder: str) -> dict[str, bytes]:
    """The files that lie in a folder itself, not in folders below it."""
    return {path: raw for path, raw in files.items() if folder_of(path) == folder}


def read_lines(raw: bytes) -> list[str]:
    """The lines of a text file. CR LF or LF ends a line; a last line may go without."""
    lines = raw.split(b"\n")
    if lines[-1] == b"":
        lines.pop()
    return [sjis.decode(line.removesuffix(b"\r")) for line in lines]


def behind_headings(lines: list[str], headings: int) -> list[str]:
    """The lines of a master behind its headings; these have to be there."""
    if len(lines) < headings:
        raise RunTimeFailure(PAST_THE_END)
    return lines[headings:]


class LineWriter:
    """A text file being written. What was written stays when a failure ends the run."""

    def __init__(self, files: Drive, path: str):
        if not files.has_folder(folder_of(path)):
            raise RunTimeFailure(NO_SUCH_FOLDER)
        self._files = files
        self._path = path
        files[path] = b""

    def write_line(self, line: str) -> None:
        self._files[self._path] += sjis.encode(line) + b"\r\n"

    def write_quoted(self, fields: list[str]) -> None:
        """One line, each field in double quotes. A quote inside a field is not escaped."""
        self.write_line(",".join(f'"{field}"' for field in fields))


class FieldReader:
    """Reads a file field by field, over the ends of its lines."""

    def __init__(self, files: Drive, path: str, skip: int = 0):
        self._lines = read_lines(files[path])[skip:]
        self._fields: list[str] = []

    def at_end(self) -> bool:
        return not self._lines and not self._fields

    def read(self, count: int) -> list[str]:
        while len(self._fields) < count:
            if not self._lines:
                raise RunTimeFailure(PAST_THE_END)
            self._fields += split_fields(self._lines.pop(0))
        record = self._fields[:count]
        del self._fields[:count]
        return record

    def records(self, count: int):
        """All records of a file that has to hold one: the end is tested behind each."""
        while True:
            yield self.read(count)
            if self.at_end():
                return


def split_fields(line: str) -> list[str]:
    """The fields of a line, parted by the commas that stand outside double quotes."""
    fields = [""]
    quoted = False
    for character in line:
        if character == "," and not quoted:
            fields.append("")
            continue
        quoted ^= character == '"'
        fields[-1] += character
    return [without_quotes(field) for field in fields]


def without_quotes(field: str) -> str:
    opened = field.lstrip(" ")
    if not opened.startswith('"'):
        return sjis.trim(field)
    inside = opened[1:]
    if '"' not in inside:
        return inside
    last = inside.rindex('"')
    return inside[:last] + inside[last + 1 :]
