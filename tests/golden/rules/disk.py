"""The files of a run, in memory: drive C: as a dictionary from path to bytes.

Paths are relative to the root of the drive, with forward slashes.
"""

from pathlib import Path

from . import sjis


class RunTimeFailure(Exception):
    """What ends a run in the error report. The number is the one that the report shows."""

    def __init__(self, number: int):
        super().__init__(f"run-time failure {number}")
        self.number = number


INVALID_CALL = 5


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


class LineWriter:
    """A text file being written. What was written stays when a failure ends the run."""

    def __init__(self, files: dict[str, bytes], path: str):
        self._files = files
        self._path = path
        files[path] = b""

    def write_quoted(self, fields: list[str]) -> None:
        """One line, each field in double quotes. A quote inside a field is not escaped."""
        line = ",".join(f'"{field}"' for field in fields)
        self._files[self._path] += sjis.encode(line) + b"\r\n"
