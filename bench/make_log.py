#!/usr/bin/env python3
"""Writes a zLog .ALL log of many invented contacts, in the order of their time.

usage: make_log.py CONTACTS FILE
"""

import random
import sys

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
BANDS = (("3.5", 3510), ("7", 7012), ("14", 14012), ("21", 21025), ("50", 50123), ("144", 144123))


def contact(number: int, choose: random.Random) -> str:
    minutes = number // 20
    month, day = 1 + minutes // 40320 % 12, 1 + minutes // 1440 % 28
    hour, minute = minutes // 60 % 24, minutes % 60
    call = "J" + choose.choice("AEFGHIJKLMNOPQR") + choose.choice("0123456789")
    call += "".join(choose.choice(LETTERS) for _ in range(3))
    if choose.random() < 0.05:
        call += "/" + choose.choice("0123456789")
    band, kilohertz = choose.choice(BANDS)
    mode = choose.choice(("CW ", "SSB", "FM "))
    received = choose.choice(("1012", "13H", "104M", "2107", "11P"))
    memo = f"%%JA1ZZ{choose.choice('ABC')}%%"
    if choose.random() < 0.1:
        memo += choose.choice((" 移動運用", " ｶﾅ ﾒﾓ", " QRP 5W"))
    memo += f" ({kilohertz + choose.randrange(30)})"
    return (
        f"2025/{month:02}/{day:02} {hour:02}:{minute:02} {call:12} 599 11M     599 "
        f"{received:8} {'-':5} -     {band:4} {mode:3}  1  {memo}"
    )


def main() -> None:
    count, file = int(sys.argv[1]), sys.argv[2]
    choose = random.Random(1)
    with open(file, "w", encoding="cp932", newline="") as log:
        log.write("zLog for Windows \r\n")
        for number in range(count):
            log.write(contact(number, choose) + "\r\n")


if __name__ == "__main__":
    main()
