"""The masters that are searched by a received number: hl_code.mas, yubin_m0.mas to yubin_m9.mas."""

from .disk import Drive, behind_headings
from .sjis import byte_column, trim, upper

Place = tuple[str, str]  # code and QTH
NOWHERE: Place = ("", "")

KEY = (2, 6)
CODE = (20, 6)
HL_CODE_QTH = (26, 32)
POSTAL_QTH = (26, 12)


class CodeMaster:
    """Two heading lines, then a record a line; there need not be one."""

    def __init__(self, files: Drive, path: str, qth: tuple[int, int]):
        self._records = [
            (upper(byte_column(line, *KEY)), (byte_column(line, *CODE), byte_column(line, *qth)))
            for line in behind_headings(files.lines_of(path), 2)
        ]

    def find(self, number: str) -> Place:
        key = upper(trim(number))
        if key == "":
            return NOWHERE  # even where a record has no key
        return next((place for record_key, place in self._records if record_key == key), NOWHERE)
