"""One run from the opened log on. A further stage is a further call in convert()."""

from dataclasses import dataclass
from pathlib import Path

from . import code_stage, dupe_list, last_pass, marks, rows, split_merge, text_logs
from .calls import CallRules
from .case import Case
from .contest_data import Contest, choose_contest
from .counters import counter_lines
from .disk import Drive, LineWriter, RunTimeFailure, files_in, load_tree
from .names import QSL_FOLDER, Names
from .options import CONTEST_DATA, STORED, Options
from .settings import (
    OPTION_FILE,
    PROGRAM_FOLDER,
    Environment,
    read_environment,
    read_stored_options,
)
from .sources import Sources

DEFAULT_STATION = Path(__file__).resolve().parent.parent / "veldrana"

DONE = 0
REFUSED = 1
FAILED = 3


@dataclass
class Outcome:
    status: int
    files: dict[str, bytes]  # every file of the folders that the run writes to
    counters: str = ""  # what the program prints, if the run came to its end


def run(case: Case) -> Outcome:
    station = {PROGRAM_FOLDER + path: raw for path, raw in load_tree(DEFAULT_STATION).items()}
    files = Drive(station | load_tree(case.input), [QSL_FOLDER])
    names = Names(case.log)
    environment = read_environment(files)
    options = Options(case.settings, read_stored_options(files, station[OPTION_FILE], STORED))
    contest = None
    if case.contest:
        if options.choice("Option02") != CONTEST_DATA:
            raise ValueError("a contest can be chosen only with Option02=2")
        contest = choose_contest(files, environment, case.contest)

    counters = ""
    if is_ready(files, case, options, contest):
        try:
            counters = convert(files, case.log, names, options, environment, contest)
            status = DONE
        except RunTimeFailure:
            status = FAILED
    else:
        status = REFUSED
    left = files_in(files, names.folder) | files_in(files, QSL_FOLDER)
    return Outcome(status, left, counters)


def is_ready(files: Drive, case: Case, options: Options, contest: Contest | None) -> bool:
    """Whether the start button is on and does something."""
    if not text_logs.accepts(case.log, files[case.log]):
        return False
    if options.choice("Option02") == CONTEST_DATA and contest is None:
        return False
    return not options.lacks_choice_of_text


def convert(
    files: Drive,
    log: str,
    names: Names,
    options: Options,
    environment: Environment,
    contest: Contest | None,
) -> str:
    sources = Sources(files, options, environment)
    text_logs.read_text_log(log, files[log], options, LineWriter(files, names.log_lines))
    code_stage.write_coded_lines(files, names, options, environment, contest)
    no_qsl = rows.build_rows(files, names, options, CallRules(), sources)
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
    return counter_lines(lines, multiples, singles, no_qsl, named, sources.text_hits)
