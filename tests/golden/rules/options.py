"""The controls of the main screen that a run reads, with the values of a first start."""

from . import sjis

REMARK_SLOTS = [f"lblRmks{remark}({slot})" for remark in (1, 2) for slot in range(6)]

# A case that sets a control not in this table is refused, so that a slip of the pen is seen.
DEFAULTS = {
    "Option02": "0",  # the code stage: none
    "Option05": "0",  # 0 stations worked once apart from the others, 1 together
    "Option06": "0",  # the key: 0 call, band, mode, date, time; 1 call, date, time, band, mode
    "Option07": "0",  # the history: not used
    "Option08": "0",  # the time: 0 as logged, 1 all J, 2 all U, 3 DX in U, 4 JA in J
    "Option09": "0",  # the order: 0 ASCII, 1 JARL, 2 JARL reversed
    "Option1": "0",  # the time of the log: 0 UTC, 1 Japan
    "Option4": "1",  # the side of the remark for a text that no source gives
    "Check01": "1",  # take the frequency from the memo
    "Check06": "0",  # make the dupe list
    "Check08": "0",  # the order for the contest file only
    "Check1": "0",  # a blank between the items of a remark
    "Check10": "0",  # no card for club stations
    "Check14": "0",  # use a QTH master; there is none
    "Check15": "1",  # read only the operator of txtOp_name
    "Check19": "0",
    "Check2": "0",  # N becomes J for a whole station
    "Check20": "0",
    "Check21": "0",  # "#" for stations worked once
    "Check3": "0",  # J becomes N for a whole station
    "Check8": "0",  # use a text of the log book; there is none
    "txtOp_name": "",
    "txtQSL_Q": "J",
    "txtQSL_S": "*",
    "txtRmks1": "",
    "txtRmks2": "",
    "txtYYYY": None,  # the present year: a case whose result holds it has to set it
    **{slot: "" for slot in REMARK_SLOTS},
    "lblRmks1(0)": "ｺﾝﾃｽﾄ",
    "lblRmks2(0)": "Rmks2",
}

# What these would need is not there in the rules yet, so they stay as they are.
FIXED = ("Option02", "Option07")

# One of two boxes going on takes the other off.
EXCLUDED_BY = {"Check2": "Check3", "Check3": "Check2"}


class Options:
    def __init__(self, settings: list[tuple[str, str]]):
        self._values = dict(DEFAULTS)
        for name, value in settings:
            if name not in DEFAULTS:
                raise ValueError(f"the rules know no control {name}")
            if name in FIXED and value != DEFAULTS[name]:
                raise ValueError(f"the rules do not know {name}={value} yet")
            self._values[name] = value
            if value == "1" and name in EXCLUDED_BY:
                self._values[EXCLUDED_BY[name]] = "0"

    def is_on(self, check_box: str) -> bool:
        return self._values[check_box] == "1"

    def choice(self, group: str) -> int:
        return int(self._values[group])

    def uses(self, item: str) -> bool:
        """Whether a remark item ("memo", "memo=", "OP", "OP %") stands in a slot."""
        return any(self._values[slot] == item for slot in REMARK_SLOTS)

    def remark_items(self, remark: int) -> list[str]:
        """The items of Rmks 1 or Rmks 2 in the order of the slots, empty slots closed up."""
        slots = [self._values[slot] for slot in REMARK_SLOTS if slot.startswith(f"lblRmks{remark}")]
        return [item for item in slots if item]

    def comment(self, remark: int) -> str:
        return self._text(f"txtRmks{remark}")

    @property
    def operator_name(self) -> str:
        return self._text("txtOp_name")

    @property
    def transfer_mark(self) -> str:
        return self._text("txtQSL_Q")[:1] or " "

    @property
    def sent_mark(self) -> str:
        return self._text("txtQSL_S")[:1] or " "

    @property
    def contest_year(self) -> str:
        if self._values["txtYYYY"] is None:
            raise ValueError("set txtYYYY: without it the result changes with the year")
        return sjis.from_unicode(self._values["txtYYYY"])[:4]

    def _text(self, field: str) -> str:
        return sjis.trim(sjis.from_unicode(self._values[field]))
