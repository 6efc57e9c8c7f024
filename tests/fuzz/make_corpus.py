#!/usr/bin/env python3
"""Writes the inputs of the fuzz targets below corpus/, always the same to the byte."""

import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "golden"))

from tables import Contact, own_table, quoted_rows, table  # noqa: E402

CONTACTS = [
    Contact("JA1ZZA", qsl="J**"),
    Contact("JH1ZZB/1", date="1999/12/31", frequency="430", mode="FM", qsl="N  "),
    Contact("JR8YYX", mode="SSB", time="23:59U", name="山田", is_deleted=True),
]


def log_books() -> dict[str, bytes]:
    own = own_table(CONTACTS)
    plain = table([("A", 8), ("B", 8)], [["JA1ZZA", "24/05/03"]], [False])
    return {
        "own_table": own,
        "plain_table": plain,
        "memo_table": b"\x83" + own[1:],
        "no_columns": own[:32] + b"\r" + own[33:],
        "header_of_zero": own[:8] + b"\0\0" + own[10:],
        "header_of_65535": own[:8] + b"\xff\xff" + own[10:],
        "record_of_zero": own[:10] + b"\0\0" + own[12:],
        "record_of_65535": own[:10] + b"\xff\xff" + own[12:],
        "promises_more": own[:4] + b"\xff\xff\xff\xff" + own[8:],
        "rows": quoted_rows(CONTACTS),
        "blank_lines": b"\r\n\r\n" + quoted_rows(CONTACTS).replace(b"\r\n", b"\n\n"),
        "no_log_book": b"neither a table\nnor rows\n",
        "zeros": bytes(300),
        "ones": b"\xff" * 300,
        "empty": b"",
    }


def main() -> None:
    for target, inputs in (("log_book", log_books()),):
        folder = HERE / "corpus" / target
        folder.mkdir(parents=True, exist_ok=True)
        for name, content in inputs.items():
            (folder / name).write_bytes(content)


if __name__ == "__main__":
    main()
