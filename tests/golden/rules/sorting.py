"""The sort of a text file by some bytes of its lines."""

from .disk import Drive


def sort_lines(
    files: Drive, source: str, target: str, start: int, length: int, reverse: bool = False
) -> None:
    """Lines by the bytes from `start` (counted from 1) on; equal ones keep their order.

    They keep it in descending order too, as sorted() does with `reverse`.
    """
    lines = files[source].split(b"\r\n")[:-1]
    ordered = sorted(lines, key=lambda line: line[start - 1 : start - 1 + length], reverse=reverse)
    files[target] = b"".join(line + b"\r\n" for line in ordered)
