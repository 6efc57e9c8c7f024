"""The masters that are searched by call: name_mas.txt, qth_mas.txt and the user texts.

They share one form: two heading lines, then a record a line in byte columns.
"""

from dataclasses import dataclass

from .disk import PAST_THE_END, Drive, RunTimeFailure, behind_headings
from .sjis import byte_column, trim, upper

KEY = (2, 6)
NAME = (8, 12)
CODE = (20, 6)
QTH = (26, 28)
REMARK = (54, 54)
LOCATOR = (54, 6)  # in qth_mas.txt, where the others have the remark


@dataclass
class Entry:
    """What a source says of a contact. What it does not know is empty."""

    name: str = ""
    code: str = ""
    qth: str = ""
    locator: str = ""
    remark: str = ""


TEXT_COLUMNS = {"name": NAME, "code": CODE, "qth": QTH, "remark": REMARK}
QTH_MASTER_COLUMNS = {"name": NAME, "code": CODE, "qth": QTH, "locator": LOCATOR}


class CallMaster:
    def __init__(self, files: Drive, path: str, columns: dict[str, tuple[int, int]]):
        lines = behind_headings(files.lines_of(path), 2)
        if not lines:
            # The end is tested behind each record, so there has to be one.
            raise RunTimeFailure(PAST_THE_END)
        self._records = [
            (upper(byte_column(line, *KEY)),
             Entry(**{field: byte_column(line, *at) for field, at in columns.items()}))
            for line in lines
        ]  # fmt: skip

    def find(self, call: str) -> Entry | None:
        """The first record of a call. A record without a call is found by an empty one."""
        key = upper(trim(call))
        return next((entry for record_key, entry in self._records if record_key == key), None)
