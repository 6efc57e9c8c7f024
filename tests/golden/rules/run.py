"""One run from the opened log on. A further stage is a further call in convert()."""

from dataclasses import dataclass

from . import code_stage, dupe_list, last_pass, marks, rows, split_merge, text_logs
from .calls import CallRules
from .case import Case
from .counters import counter_lines
from .disk import Drive, LineWriter, RunTimeFailure, files_in, load_tree
from .names import QSL_FOLDER, Names
from .options import Options

DONE = 0
REFUSED = 1
FAILED = 3


@dataclass
class Outcome:
    status: int
    files: dict[str, bytes]  # every file of the folders that the run writes to
    counters: str = ""  # what the program prints, if the run came to its end


def run(case: Case) -> Outcome:
    files = Drive(load_tree(case.input), [QSL_FOLDER])
    names = Names(case.log)
    options = Options(case.settings)
    counters = ""
    if text_logs.accepts(case.log, files[case.log]):
        try:
            counters = convert(files, case.log, names, options)
            status = DONE
        except RunTimeFailure:
            status = FAILED
    else:
        status = REFUSED
    left = files_in(files, names.folder) | files_in(files, QSL_FOLDER)
    return Outcome(status, left, counters)


def convert(files: Drive, log: str, names: Names, options: Options) -> str:
    text_logs.read_text_log(log, files[log], options, LineWriter(files, names.log_lines))
    code_stage.write_coded_lines(files, names, options)
    no_qsl = rows.build_rows(files, names, options, CallRules())
    lines, multiples, singles = split_merge.write_contest_rows(files, names, options)
    if options.is_on("Check06"):
        dupe_list.write_dupe_list(files, names)

    marks.turn_marks(files, names, options)
    marks.write_original_marks(files, names)
    marks.rewrite_letter(files, names)
    last_pass.write_result(files, names.hamlog_rows, names.hamlog_result, options)
    named = last_pass.write_result(files, names.contest_rows, names.contest_result, options)
    files.delete(names.hamlog_rows, names.contest_rows, names.hamlog_split, names.contest_split)
    files.delete(names.reversed_rows)
    return counter_lines(lines, multiples, singles, no_qsl, named)
