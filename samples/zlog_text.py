"""Lines of zLog's text logs."""

from contacts import Contact
from sample_files import Dice, padded


def memo_column(dice: Dice, contact: Contact) -> str:
    """Duplicate mark, operator, free text and frequency, in the order of a logger's habit.

    Now and then the free text stands behind the frequency, or there is no frequency.
    """
    words = ["-DUPE-"] if contact.is_dupe else []
    words.append(f"%%{contact.operator}%%")
    frequency = [f"({contact.frequency})"] if dice.happens(92) else []
    memo = [contact.memo] if contact.memo else []
    words += frequency + memo if dice.happens(8) else memo + frequency
    return " ".join(words)


def all_line(dice: Dice, contact: Contact, start: tuple[int, int, int, int]) -> str:
    year, month, day, hour = start
    hours, minute = divmod(contact.minute, 60)
    days, hour = divmod(hour + hours, 24)
    multi = contact.station.place if contact.is_new_multi else "-"
    columns = (
        f"{year:04d}/{month:02d}/{day + days:02d} {hour:02d}:{minute:02d} "
        + padded(contact.station.call, 12) + " "
        + padded(contact.report_sent, 3) + " "
        + padded("11M", 7) + " "
        + padded(contact.report_received, 3) + " "
        + padded(contact.station.number, 8)
        + padded(multi, 6)
        + padded("-", 6)
        + padded(contact.band, 4) + " "
        + padded(contact.mode, 4) + " "
        + ("0" if contact.is_dupe else "1").ljust(3)
    )
    assert len(columns) == 79
    return columns + memo_column(dice, contact)


def txt_line(dice: Dice, contact: Contact, start: tuple[int, int, int, int]) -> str:
    _, month, day, hour = start
    hours, minute = divmod(contact.minute, 60)
    days, hour = divmod(hour + hours, 24)
    multi = contact.station.place if contact.is_new_multi else ""
    columns = (
        f"{month:2d}  {day + days:2d} {hour:02d}{minute:02d} "
        + padded(contact.station.call, 11)
        + padded(contact.report_sent, 3) + " "
        + padded("1107M", 9)
        + padded(contact.report_received, 3) + " "
        + padded(contact.station.number, 6) + " "
        + padded(multi, 10)
        + padded(contact.band, 4) + "  "
        + padded(contact.mode, 4) + "  "
        + ("0" if contact.is_dupe else "1").rjust(3)
    )
    assert len(columns) == 72
    return columns + " " + memo_column(dice, contact)
