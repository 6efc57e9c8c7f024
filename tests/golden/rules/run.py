"""One run from the opened log on. A further stage is a further call in convert()."""

from dataclasses import dataclass
from pathlib import Path

from . import code_stage, dupe_list, history, last_pass, marks, rows, split_merge, text_logs
from .calls import CallRules
from .case import Case
from .contest_data import Contest, choose_contest
from .counters import counter_lines
from .disk import Drive, LineWriter, ProgramEnd, files_in, load_tree
from .names import HISTORY_FOLDER, OLD_HISTORY_INDEX, QSL_FOLDER, Names
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
    files = Drive(station | load_tree(case.input), [QSL_FOLDER, HISTORY_FOLDER], case.times)
    names = Names(case.log)
    environment = read_environment(files)
    options = Options(case.settings, read_stored_options(files, station[OPTION_FILE], STORED))
    contest = None
    if case.contest:
        if options.choice("Option02") != CONTEST_DATA:
            raise ValueError("a contest can be chosen only with Option02=2")
        contest = choose_contest(files, environment, case.contest)

    counters = ""
    status = REFUSED
    if is_ready(files, case, options, contest):
        delete_old_index(files)
        if not options.lacks_choice_of_text:
            try:
                counters = convert(files, case.log, names, options, environment, contest)
                status = DONE
            except ProgramEnd:
                status = FAILED
    folders = (names.folder, QSL_FOLDER, HISTORY_FOLDER)
    left = {path: raw for folder in folders for path, raw in files_in(files, folder).items()}
    return Outcome(status, left, counters)


def is_ready(files: Drive, case: Case, options: Options, contest: Contest | None) -> bool:
    """Whether the start button is on."""
    if not text_logs.accepts(case.log, files[case.log]):
        return False
    return options.choice("Option02") != CONTEST_DATA or contest is not None


def delete_old_index(files: Drive) -> None:
    name = files.find(OLD_HISTORY_INDEX)
    if name is not None:
        files.delete(name)


def convert(
    files: Drive,
    log: str,
    names: Names,
    options: Options,
    environment: Environment,
    contest: Contest | None,
) -> str:
    sources = Sources(files, options, environment)
    history.refresh(files, options, environment)
    text_logs.read_text_log(log, files[log], options, LineWriter(files, names.log_lines))
    code_stage.write_coded_lines(files, names, options, environment, contest)
    no_qsl = rows.build_rows(files, names, options, CallRules(), sources)
    lines, multiples, singles = split_merge.write_contest_rows(files, names, options)
    if options.is_on("Check06"):
        dupe_list.write_dupe_list(files, names)

    marks.turn_marks(files, names, options)
    marks.write_original_marks(files, names)
    letter = environment.no_qsl_letter
    if letter != "N":
        marks.rewrite_letter(files, names, letter)
    marks.rewrite_letter(files, names, letter)
    last_pass.write_result(files, names.hamlog_rows, names.hamlog_result, options, letter)
    named = last_pass.write_result(
        files, names.contest_rows, names.contest_result, options, letter
    )
    files.delete(names.hamlog_rows, names.contest_rows, names.hamlog_split, names.contest_split)
    files.delete(names.reversed_rows)
    return counter_lines(lines, multiples, singles, no_qsl, named, sources.text_hits)
