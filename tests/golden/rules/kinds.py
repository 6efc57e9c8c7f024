"""What kind a log is, and whether it opens as such."""

from . import adif, cabrillo, rtcl, text_logs

KINDS = ("all", "txt", "zlo", "cbr", "ADIF", "lg8", "log_v4", "log_v430")

BY_EXTENSION = {"zlo": "zlo", "cbr": "cbr", "adi": "ADIF", "lg8": "lg8"}


def kind_of(path: str, raw: bytes) -> str:
    """The kind of a log for which none is named."""
    extension = path[path.rindex(".") + 1 :].lower()
    if extension in BY_EXTENSION:
        return BY_EXTENSION[extension]
    if extension == "log":
        return rtcl.kind_of(raw) or "cbr"
    if extension == "txt":
        return "txt" if text_logs.accepts(path, raw) else "cbr"
    return "all"


def accepts(kind: str, path: str, raw: bytes) -> bool:
    """Whether the open step takes a file as a log of its kind."""
    if kind in ("all", "txt"):
        return text_logs.accepts(path, raw)
    if kind == "zlo":
        return True  # opened without a look
    if kind == "cbr":
        return cabrillo.accepts(raw)
    if kind == "ADIF":
        return adif.accepts(raw)
    if kind in rtcl.LAYOUTS:
        return rtcl.accepts(kind, raw)
    raise ValueError(f"the rules do not know a log of the kind {kind}")
