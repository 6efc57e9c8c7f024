"""The two remarks of a contact. No item has a length here."""

from .options import Options
from .sjis import trim

MEMO_MARK = "memo="


class RemarkComposer:
    """Composes the remarks of one contact; the memo changes on the way."""

    def __init__(
        self, memo: str, operator: str, number: str, contest_name: str, options: Options
    ):
        self._memo = memo
        self._operator = operator
        self._number = number
        self._contest_name = contest_name
        self._options = options

    def compose(self, remark: int) -> str:
        between = " " if self._options.is_on("Check1") else ""
        text = ""
        for item in self._options.remark_items(remark):
            text = trim(text + between + self._item(item))
        return text

    def _item(self, item: str) -> str:
        if item == "memo":
            # The mark is gone for the items behind as well, and for the other remark.
            self._memo = self._memo.replace(MEMO_MARK, "")
            return self._memo
        if item == "memo=":
            if trim(self._memo) == "":
                return ""
            return self._memo if MEMO_MARK in self._memo else MEMO_MARK + self._memo
        if item == "OP":
            return self._operator
        if item == "OP %":
            return f"%{self._operator}%" if trim(self._operator) != "" else ""
        if item == "ｺﾝﾃｽﾄ":
            return self._contest_name
        if item == "Rcvd":
            return self._number
        if item in ("Rmks1", "Rmks2"):
            return self._options.comment(int(item[-1]))
        raise ValueError(f"no remark item has the name {item}")


def with_text_remark(
    text: str, remark_1: str, remark_2: str, options: Options
) -> tuple[str, str]:
    """The remarks with the one of a user text on the side that Option4 says."""
    side = options.choice("Option4")
    if side == 0:
        return trim(f"{text} {remark_1}"), remark_2
    if side == 1:
        return trim(f"{remark_1} {text}"), remark_2
    if side == 2:
        return remark_1, trim(f"{text} {remark_2}")
    return remark_1, trim(f"{remark_2} {text}")
