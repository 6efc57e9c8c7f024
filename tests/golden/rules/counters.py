"""The ten numbers that the program shows at the end of a run."""

LABELS = [
    " 今 回 の処理数",
    " 複 数 の局の数",
    " 単 数 の局の数",
    " 複 ・単の合計数",
    " No QSL 局の数",
    " Name 取得の数",
    " ＪＡＲＬ登録の数",
    " ＪＡＲＬ無登録数",
    " ＪＡＲＬ無検索数",
    " Text_data 取得数",
]


def counter_lines(
    lines: int, multiples: int, singles: int, no_qsl: int, named: int, text_hits: int
) -> str:
    """A line each: label, TAB, number. The member search has counted nothing."""
    numbers = [lines, multiples, singles, multiples + singles, no_qsl, named, 0, 0, 0, text_hits]
    return "".join(f"{label}\t{number}\n" for label, number in zip(LABELS, numbers, strict=True))
