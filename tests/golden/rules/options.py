"""The controls of the main screen that a run reads, with the values of a first start."""

from . import sjis

REMARK_SLOTS = [f"lblRmks{remark}({slot})" for remark in (1, 2) for slot in range(6)]

# A case that sets a control not in this table is refused, so that a slip of the pen is seen.
DEFAULTS = {
    "Check01": "1",  # take the frequency from the memo
    "Check15": "1",  # read only the operator of txtOp_name
    "txtOp_name": "",
    "txtYYYY": None,  # the present year: a case whose result holds it has to set it
    **{slot: "" for slot in REMARK_SLOTS},
    "lblRmks1(0)": "ｺﾝﾃｽﾄ",
    "lblRmks1(1)": "Rmks1",
    "lblRmks2(0)": "Rmks2",
}


class Options:
    def __init__(self, settings: list[tuple[str, str]]):
        self._values = dict(DEFAULTS)
        for name, value in settings:
            if name not in DEFAULTS:
                raise ValueError(f"the rules know no control {name}")
            self._values[name] = value

    def is_on(self, check_box: str) -> bool:
        return self._values[check_box] == "1"

    def uses(self, item: str) -> bool:
        """Whether a remark item ("memo", "memo=", "OP", "OP %") stands in a slot."""
        return any(self._values[slot] == item for slot in REMARK_SLOTS)

    @property
    def operator_name(self) -> str:
        return sjis.trim(sjis.from_unicode(self._values["txtOp_name"]))

    @property
    def contest_year(self) -> str:
        if self._values["txtYYYY"] is None:
            raise ValueError("set txtYYYY: without it the result changes with the year")
        return sjis.from_unicode(self._values["txtYYYY"])[:4]
