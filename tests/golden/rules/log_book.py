"""The log book: its records in their order, each as fourteen texts.

Call, date, time, report sent, report received, frequency, mode, code, G/L, QSL marks, name, QTH,
two remarks. What a file is, its content says and never its name: a table or quoted rows.
"""

from dataclasses import dataclass

from .disk import ProgramEnd, read_lines, split_fields
from .sjis import decode, trim

FIELD_COUNT = 14
MARKS = 9  # the place of the QSL marks, counted from 0

TABLE_KINDS = (0x03, 0x83)
SMALLEST_HEADER = 32
DESCRIPTOR_SIZE = 32
END_OF_DESCRIPTORS = 0x0D
DELETED = ord("*")
IN_UTC = 0x80

# Quoted rows are told from other texts by the columns of the first one.
FEWEST_COLUMNS = 10


class LogBookFailure(ProgramEnd):
    """The log book cannot be opened. The program ends without a message."""


@dataclass
class Record:
    fields: list[str]
    is_deleted: bool = False


def read_log_book(raw: bytes) -> list[Record]:
    if raw == b"":
        return []
    if raw[0] in TABLE_KINDS:
        return table_records(raw)
    return row_records(raw)


def table_records(raw: bytes) -> list[Record]:
    header_length = int.from_bytes(raw[8:10], "little")
    record_length = int.from_bytes(raw[10:12], "little")
    if len(raw) < SMALLEST_HEADER or header_length < SMALLEST_HEADER or record_length == 0:
        raise LogBookFailure("the table has no header")
    count = int.from_bytes(raw[4:8], "little")
    if len(raw) < header_length + count * record_length:
        raise ValueError("the rules leave open what a table says that breaks off")

    columns = table_columns(raw)
    records = []
    for number in range(count):
        at = header_length + number * record_length
        record = raw[at : at + record_length]
        parts = [(name, record[first : first + width]) for name, first, width in columns]
        named = dict(parts)
        if "CALLS" in named and "IGN" in named:
            fields = own_fields(named)
        else:
            fields = [text_of(part) for _, part in parts]
        records.append(Record(filled(fields), record[0] == DELETED))
    return records


def table_columns(raw: bytes) -> list[tuple[str, int, int]]:
    """Name, first byte behind the record's begin, and width of each column."""
    columns = []
    first = 1  # behind the deletion mark
    at = SMALLEST_HEADER
    while raw[at] != END_OF_DESCRIPTORS:
        width = raw[at + 16]
        columns.append((text_of(raw[at : at + 11]), first, width))
        first += width
        at += DESCRIPTOR_SIZE
    return columns


def own_fields(named: dict[str, bytes]) -> list[str]:
    """The fields of a record in the layout that the log book itself uses."""
    call = text_of(named["CALLS"]) + text_of(named["IGN"])
    _, year, month, day = named["DATE"]
    hour, minute = named["TIME"]
    zone = "U" if minute & IN_UTC else "J"
    return [
        call.replace(" ", ""),
        f"{year:02d}/{month:02d}/{day:02d}",
        f"{hour:02d}:{minute & ~IN_UTC:02d}{zone}",
        *(text_of(named[name]) for name in (
            "HIS", "MY", "FREQ", "MODE", "CODE", "GL", "QSL", "NAME", "QTH", "RMK1", "RMK2",
        )),
    ]  # fmt: skip


def row_records(raw: bytes) -> list[Record]:
    lines = [line for line in read_lines(raw) if trim(line) != ""]
    if not lines:
        raise ValueError("the rules leave open what a file of blank lines is")
    if "\0" in lines[0] or len(split_fields(lines[0])) < FEWEST_COLUMNS:
        raise LogBookFailure("neither a table nor quoted rows")
    # In a row too, a field ends at its first NUL.
    return [Record(filled([up_to_nul(field) for field in split_fields(line)])) for line in lines]


def filled(fields: list[str]) -> list[str]:
    return (fields + [""] * FIELD_COUNT)[:FIELD_COUNT]


def text_of(raw: bytes) -> str:
    return up_to_nul(decode(raw))


def up_to_nul(text: str) -> str:
    return text.partition("\0")[0]
