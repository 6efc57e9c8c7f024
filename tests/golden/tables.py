"""Writers of log books: tables in the log book's own layout and in others, and quoted rows."""

from dataclasses import dataclass

TABLE, TABLE_WITH_MEMOS = 0x03, 0x83  # the first byte
LAST_UPDATE = bytes([125, 4, 1])
IN_UTC = 0x80
CALLS_WIDTH = 6

# Name and width of each column.
Layout = list[tuple[str, int]]

OWN_LAYOUT: Layout = [
    ("CALLS", CALLS_WIDTH), ("IGN", 14), ("DATE", 4), ("TIME", 2), ("CODE", 6), ("GL", 6),
    ("QSL", 3), ("FLAG", 2), ("HIS", 3), ("MY", 3), ("FREQ", 7), ("MODE", 4), ("NAME", 12), ("QTH", 28),
    ("RMK1", 54), ("RMK2", 54),
]  # fmt: skip


@dataclass(frozen=True)
class Contact:
    call: str
    date: str = "2024/05/03"
    frequency: str = "7"
    mode: str = "CW"
    qsl: str = "J* "
    time: str = "09:00J"
    his: str = "599"
    my: str = "599"
    code: str = ""
    locator: str = ""
    name: str = ""
    qth: str = ""
    remark_1: str = ""
    remark_2: str = ""
    is_deleted: bool = False

    @property
    def fields(self) -> list[str]:
        """The fourteen fields as the log book gives them."""
        return [
            self.call, self.date[2:], self.time, self.his, self.my, self.frequency, self.mode,
            self.code, self.locator, self.qsl, self.name, self.qth, self.remark_1, self.remark_2,
        ]  # fmt: skip

    def columns(self) -> dict[str, str | bytes]:
        """What stands in the columns of the own layout."""
        year, month, day = map(int, self.date.split("/"))
        hour, minute = int(self.time[:2]), int(self.time[3:5])
        if self.time.endswith("U"):
            minute |= IN_UTC
        calls, ign = call_columns(self.call)
        return {
            "CALLS": calls, "IGN": ign, "DATE": bytes([*divmod(year, 100), month, day]),
            "TIME": bytes([hour, minute]), "CODE": self.code, "GL": self.locator, "QSL": self.qsl,
            "FLAG": bytes(2), "HIS": self.his, "MY": self.my, "FREQ": self.frequency,
            "MODE": self.mode, "NAME": self.name, "QTH": self.qth, "RMK1": self.remark_1,
            "RMK2": self.remark_2,
        }  # fmt: skip


def call_columns(call: str) -> tuple[str, str]:
    """A call with its portable part in a column of its own, if what stands in front fits."""
    base = call.partition("/")[0]
    cut = len(base)
    while len(call[:cut].encode("cp932")) > CALLS_WIDTH:
        cut -= 1
    return call[:cut], call[cut:]


def own_table(contacts: list[Contact], layout: Layout = OWN_LAYOUT) -> bytes:
    """The contacts in the columns of the own layout; their order and widths may be others."""
    rows = [contact.columns() for contact in contacts]
    records = [[row.get(name, "") for name, _ in layout] for row in rows]
    return table(layout, records, [contact.is_deleted for contact in contacts])


def table(
    layout: Layout,
    records: list[list[str | bytes]],
    deleted: list[bool] | None = None,
    kind: int = TABLE,
) -> bytes:
    """A table of any layout. A value is filled with blanks to the width of its column."""
    descriptors = b"".join(
        name.encode().ljust(11, b"\0") + b"C" + bytes(4) + bytes([width]) + bytes(15)
        for name, width in layout
    )
    header_length = 32 + len(descriptors) + 1
    record_length = 1 + sum(width for _, width in layout)
    header = (
        bytes([kind])
        + LAST_UPDATE
        + len(records).to_bytes(4, "little")
        + header_length.to_bytes(2, "little")
        + record_length.to_bytes(2, "little")
        + bytes(20)
    )
    marks = deleted or [False] * len(records)
    body = b"".join(
        (b"*" if mark else b" ") + record_bytes(layout, record)
        for mark, record in zip(marks, records, strict=True)
    )
    return header + descriptors + b"\r" + body + b"\x1a"


def record_bytes(layout: Layout, record: list[str | bytes]) -> bytes:
    parts = []
    for (name, width), value in zip(layout, record, strict=True):
        raw = value if isinstance(value, bytes) else value.encode("cp932")
        if len(raw) > width:
            raise ValueError(f"{value!r} is too wide for {name}")
        parts.append(raw.ljust(width))
    return b"".join(parts)


def quoted_rows(contacts: list[Contact]) -> bytes:
    """The contacts as the log book exports them; deleted ones are left out."""
    return b"".join(quoted_row(contact.fields) for contact in contacts if not contact.is_deleted)


def quoted_row(fields: list[str]) -> bytes:
    return (",".join(f'"{field}"' for field in fields) + "\r\n").encode("cp932")
