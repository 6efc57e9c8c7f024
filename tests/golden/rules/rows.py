"""The row builder: each contact of zlog_2.txt as a contest row and as a Hamlog row.

A contest row has nineteen columns: call base, portable part, code, G/L, frequency, mode, name,
transfer mark, sent mark, an empty one, date, time, report sent, report received, QTH, Rmks 1,
Rmks 2, call, call.

A Hamlog row has seventeen: call base, portable part, date, time, report sent, report received,
frequency, mode, code, G/L, QSL field, name, QTH, Rmks 1, Rmks 2, call, call.
"""

from . import names as at
from . import orders
from .calls import CallRules
from .disk import Drive, FieldReader, LineWriter
from .history import History
from .names import Names
from .options import Options
from .remarks import RemarkComposer, with_text_remark
from .sjis import trim
from .sorting import sort_lines
from .sources import DAT_MAS, NAME_MAS, QTH_MAS, TEXT_DATA, Sources, chosen
from .times import date_text, time_text, zoned_time

NO_QSL = "N"


def build_rows(
    files: Drive,
    names: Names,
    options: Options,
    calls: CallRules,
    sources: Sources,
    contest_name: str,
) -> int:
    """Gives how often the history or the club rule marked a contact; it may be both.

    Only a binary log of zLog has a `contest_name`; of the other kinds it is empty.
    """
    contacts = FieldReader(files, names.coded_lines)
    for_sort = LineWriter(files, at.SORT_IN)
    for_contest = LineWriter(files, at.ROWS_FOR_CONTEST)
    for_hamlog = LineWriter(files, at.ROWS_FOR_HAMLOG)
    index = options.history_index
    past = None if index is None else History(files, at.history(index))
    sources.load_for_rows()
    no_qsl = 0
    for contact in contacts.records(17):
        (date, time, call, sent, received, base, portable, frequency, mode,
         _, _, stage_code, stage_qth, number, operator, memo, call_again) = contact  # fmt: skip

        time += "J" if options.choice("Option1") == 1 else "U"
        date, time = zoned_time(date, time, call, options, calls)
        received = trim(received[:3])

        composer = RemarkComposer(memo, operator, number, contest_name, options)
        remark_1 = composer.compose(1)
        remark_2 = composer.compose(2)

        mark = options.transfer_mark
        if past is not None and past.covers(call, frequency, mode, options):
            mark = NO_QSL
            no_qsl += 1
        if options.is_on("Check10") and calls.is_club(base):
            mark = NO_QSL
            no_qsl += 1
        sent_mark = " " if mark == NO_QSL else options.sent_mark

        entries = {
            DAT_MAS: sources.dat_mas(stage_code, stage_qth),
            NAME_MAS: sources.name_mas(base),
            TEXT_DATA: sources.text_data(base, portable),
        }
        base = sources.six_character_rule(base)
        entries[QTH_MAS] = sources.qth_mas(base, portable)
        locator = entries[QTH_MAS].locator
        name = chosen("name", "", entries, options)
        code = chosen("code", stage_code, entries, options)
        qth = chosen("qth", stage_qth, entries, options)
        if options.is_on("Check8"):
            text_remark = entries[TEXT_DATA].remark
            remark_1, remark_2 = with_text_remark(text_remark, remark_1, remark_2, options)
        base = trim(base)
        tail = [date, time, sent, received, qth, remark_1, remark_2, call_again, call]
        head = [base, portable, code, locator, frequency, mode, name, mark]
        for_sort.write_quoted([*head, "", "", *tail])
        for_contest.write_quoted([*head, sent_mark, "", *tail])
        for_hamlog.write_quoted([
            base, portable, date_text(date), time_text(time), sent, received, frequency, mode,
            code, locator, mark + sent_mark + " ", name, qth, remark_1, remark_2, call_again, call,
        ])  # fmt: skip

    sort_lines(files, at.SORT_IN, at.SORT_OUT, 1, 8)
    orders.write_hamlog_rows(files, names, options)
    return no_qsl
