#!/usr/bin/env python3
"""Writes events.log, one night shift of an etcher, in code page 936: the same bytes at every run.

    make_log.py FILE           write the log
    make_log.py --check FILE   write nothing; exit with status 1 if FILE differs from the log

README.md, beside this file, describes the form of the log.
"""

import datetime
import random
import sys

LINES = 2400
SEED = 20250728
START = datetime.datetime(2025, 7, 28, 20, 0, 0, 417000)
LIMIT = 511  # bytes of a line that the host takes

UNITS = {
    "LL1": "装载锁|Load lock",
    "PM1": "一号腔|Chamber 1",
    "PM2": "二号腔|Chamber 2",
    "PM3": "三号腔|Chamber 3",
    "TM": "传送腔|Transfer",
}
# number, severity, text, weight: how often it comes
ALARMS = [
    (1203, 3, "真空压力过低|Vacuum pressure low", 9),
    (1204, 2, "真空压力偏高|Vacuum pressure high", 5),
    (1310, 3, "冷却水流量不足|Cooling water flow low", 6),
    (1311, 2, "冷却水温度过高|Cooling water too warm", 2),
    (2007, 3, "机械手原点丢失|Robot lost home", 1),
    (2041, 2, "晶圆未对准|Wafer not aligned", 7),
    (2042, 1, "晶圆计数不符|Wafer count differs", 3),
    (3105, 2, "射频反射功率过高|RF reflected power high", 4),
    (3106, 3, "射频匹配失败|RF match failed", 2),
    (4001, 1, "气瓶余量不足|Gas bottle nearly empty", 2),
    (4410, 1, "Filter due", 2),
    (4411, 1, "门未关", 2),
    (5000, 3, "急停按下|Emergency stop pressed", 1),
]
STREAMS = [(1, 1), (1, 3), (1, 13), (2, 41), (5, 1), (6, 1), (6, 11), (7, 3), (7, 23), (10, 3)]
BAD_NAMES = ["S6F", "SF11", "6F11", "S300F1", "S6F256", "S6F11F", "S-1F1", "SxF1", "S6 F11", "W6F11"]
SETTINGS = [
    # name, lowest, highest, unit, decimals (see number), share of values out of bounds
    ("Temperature", 200.0, 300.0, "degC", 1, 0.05),
    ("Pressure", 0.5e-3, 2.5e-3, "Pa", -3, 0.06),
    ("Power", 300.0, 900.0, "W", 0, 0.03),
    ("GasFlow", 20.0, 80.0, "sccm", 2, 0.04),
    ("Cycles", 1, 50, "-", None, 0.05),
    ("Offset", 0, 0, "um", None, 0.0),  # equal bounds: none
]
RECIPES = ["ETCH_A7", "ETCH_B2", "CLEAN_01", "STRIP_9", "SEASON"]
ERRORS = [0] * 12 + [2, 2, 3, 5, 32, 32, 35, 39, 112, 121, 183, 1223, 1460]
FOLDERS = ["D:\\Recipe/etch", "D:\\Log Files/2025\\07", "\\\\mes01\\lots/night", "/opt/tool/data", "E:"]
REASONS = [
    "更换密封圈|Seal replaced",
    "等待物料|Waiting for material",
    "泵保养|Pump maintenance",
    "晶圆破片|Broken wafer",
    "配方下载失败|Recipe download failed",
    "Power dip",
]
USERS = ["张伟", "李娜", "wang.fang", "O Neill"]
NOTES = [
    "%UNIT% checked by %USER%, ok",
    "%UNIT% 已检查，正常   ",
    "  Call %USER% before the next lot on %UNIT%  ",
    "PLEASE DO NOT OPEN %UNIT%!!!",
    "particle count 35 per wafer,,see chart",
    "交接：%UNIT% 真空慢，注意观察",
    "gauge of %UNIT% reads 0x3FF, replace  ",
]


class Dice:
    """Draws from random() alone, the one sequence that Python promises to keep between versions."""

    def __init__(self, seed):
        self._next = random.Random(seed).random

    def below(self, n):
        return int(self._next() * n)

    def between(self, low, high):
        return low + (high - low) * self._next()

    def chance(self, share):
        return self._next() < share

    def pick(self, items):
        return items[self.below(len(items))]

    def weighted(self, rows):
        """One of the rows; the last column of each says how often."""
        at = self._next() * sum(row[-1] for row in rows)
        for row in rows:
            at -= row[-1]
            if at < 0:
                break
        return row


def number(value, decimals):
    """A value as the controllers print it; decimals None is an integer, below 0 an exponent."""
    if decimals is None:
        return "%d" % value
    return "%.*f" % (decimals, value) if decimals >= 0 else "%.*e" % (-decimals, value)


class Shift:
    """The equipment: each method gives one event, kind and all, without its stamp."""

    def __init__(self, dice):
        self.dice = dice
        self.state = {unit: "IDLE" for unit in UNITS}
        self.active = []
        self.lot = 14
        self.token = 0x1A2B00

    def unit(self):
        return self.dice.pick(list(UNITS))

    def alarm(self):
        dice = self.dice
        if self.active and dice.chance(0.53):
            return "ALARM CLEAR " + self.active.pop(dice.below(len(self.active)))
        num, severity, text, _ = dice.weighted(ALARMS)
        parts = [UNITS[self.unit()], text]
        if dice.chance(0.15):
            repeat = dice.below(4) + 2
            parts.append("第%d次|Repeat %d" % (repeat, repeat))
        event = "%d [%d] %s" % (num, severity, ";".join(parts))
        self.active.append(event)
        return "ALARM SET " + event

    def data(self):
        dice = self.dice
        return "DATA %s %.1f,%.3e,0x%02X,%d,%.2f" % (
            dice.pick(["PM1", "PM2", "PM3"]), dice.between(235, 262), dice.between(0.6e-3, 2.4e-3),
            dice.below(256), dice.below(400) - 20, dice.between(80, 110))

    def down(self):
        dice = self.dice
        hours = dice.pick([0.02, 0.1, 0.1, 0.4, 0.8, 3]) + (24 if dice.chance(0.06) else 0)
        seconds = dice.between(0.2, 1) * hours * 3600
        return "DOWN %s %.3f (%s)" % (self.unit(), seconds, dice.pick(REASONS))

    def file(self):
        dice = self.dice
        name = dice.pick(["/a7.v3.rcp", "\\lot_%04d.csv" % dice.below(9000),
                          "/trace.%d.bin" % dice.below(40), "\\Wafer Map.xml"])
        return 'FILE %s %d "%s%s"' % (
            dice.pick(["READ", "WRITE", "DELETE"]), dice.pick(ERRORS), dice.pick(FOLDERS), name)

    def lot_change(self):
        dice = self.dice
        slots = [str(slot) for slot in range(1, 26) if dice.chance(0.4)] or ["1"]
        self.lot += 1
        return "LOT %s L0728-%03d %s %s" % (
            dice.pick(["START", "END"]), self.lot, dice.pick(RECIPES), ",".join(slots))

    def message(self):
        dice = self.dice
        stream, function = dice.pick(STREAMS)
        name = "S%dF%d" % (stream, function + dice.below(2))
        if dice.chance(0.03):
            name = dice.pick(BAD_NAMES)
        elif dice.chance(0.03):
            name = name.lower()
        self.token += 1 + dice.below(3)
        return "MSG %s 0x%08X %d %s" % (
            dice.pick(["SEND", "RECV"]), self.token, 10 + dice.below(2000), name)

    def note(self):
        return 'NOTE %s "%s"' % (self.unit(), self.dice.pick(NOTES))

    def recipe(self):
        dice = self.dice
        name, low, high, unit, decimals, outside = dice.pick(SETTINGS)
        span = (high - low) or 20
        value = low + span * dice.between(0, 1)
        if dice.chance(outside):
            value = high + span * dice.between(0.05, 0.3)
        return "RECIPE %s %s=%s %s [%s,%s]" % (
            dice.pick(RECIPES), name, number(value, decimals), unit, number(low, decimals),
            number(high, decimals))

    def start(self):
        serial = 0x00010A3F + self.dice.below(16)
        return 'START v4.2.1 0x%08X "Etcher 300 (night shift)"' % serial

    def state_change(self):
        unit = self.unit()
        old, new = self.state[unit], self.dice.pick(["IDLE", "RUN", "RUN", "HOLD", "PM"])
        self.state[unit] = new
        return "STATE %s <%s> <%s>" % (unit, new, old)

    def user(self):
        return "USER %s '%s'" % (self.dice.pick(["LOGIN", "LOGOUT"]), self.dice.pick(USERS))


MIX = [(Shift.alarm, 12), (Shift.data, 22), (Shift.down, 1), (Shift.file, 7),
       (Shift.lot_change, 4), (Shift.message, 26), (Shift.note, 3), (Shift.recipe, 14),
       (Shift.state_change, 9), (Shift.user, 2)]


def as_written(dice, event):
    """The old controller of chamber 3 writes lower-case kinds and pads them with blanks."""
    if " PM3 " in event and dice.chance(0.5):
        kind, rest = event.split(" ", 1)
        return kind.lower() + "   " + rest
    return event


# How lines get damaged: each takes the bytes of a good line and gives those of a bad one. The event
# starts at byte 24, behind stamp and blank.

def cut_off(dice, line):
    return line[: 5 + dice.below(len(line) - 12)]


def over_long(dice, line):
    return line + b" " + line[24:] * (2 + LIMIT // len(line[24:]) + dice.below(8))


def doubled(_, line):
    for mark in (b",", b"|"):
        if mark in line[24:]:
            at = line.index(mark, 24)
            return line[:at] + mark + line[at:]
    return line.replace(b"/", b"//", 1)


def stray_byte(dice, line):
    at = 24 + dice.below(len(line) - 24)
    return line[:at] + dice.pick([b"\x07", b"\x1b[0m", b"\xff", b"\x7f", b"\x08\x08"]) + line[at:]


def zero_bytes(dice, line):
    return line[: 20 + dice.below(len(line) - 20)] + bytes(4 + dice.below(60))


def bad_stamp(dice, line):
    return dice.pick([line.replace(b"/", b"-", 2), line[2:], line[:19] + line[23:],
                      line[:11] + b"8" + line[13:], line[:10] + line[11:]])


def bad_kind(dice, line):
    kind = line[24:].split(b" ", 1)[0]
    return line.replace(kind, dice.pick([kind[:-1], kind + b"?", b"#" + kind, kind[::-1]]), 1)


def empty(*_):
    return b""


DAMAGES = [cut_off, cut_off, cut_off, over_long, doubled, doubled, stray_byte, zero_bytes,
           bad_stamp, bad_kind, empty]


def make_log():
    dice = Dice(SEED)
    shift = Shift(dice)
    now = START
    lines = []
    for index in range(LINES):
        event, _ = dice.weighted(MIX)
        text = shift.start() if index in (0, 1571) else as_written(dice, event(shift))
        # Both bytes of every double-byte character lie above ASCII, so that none looks like a mark.
        assert all(len(c.encode("gbk")) == 1 or min(c.encode("gbk")) >= 0x80 for c in text)
        stamp = "%s.%03d" % (now.strftime("%Y/%m/%d %H:%M:%S"), now.microsecond // 1000)
        line = (stamp + " " + text).encode("gbk")
        assert len(line) <= LIMIT
        if index > 0 and dice.chance(0.025):
            line = DAMAGES[index % len(DAMAGES)](dice, line)
        lines.append(line)
        now += datetime.timedelta(milliseconds=200 + dice.below(35500))
    # The machine was still writing when the log was fetched: no end of line.
    lines.append(now.strftime("%Y/%m/%d %H:%M").encode())
    return b"\r\n".join(lines)


def main(arguments):
    if len(arguments) == 1 and not arguments[0].startswith("-"):
        with open(arguments[0], "wb") as file:
            file.write(make_log())
        return 0
    if len(arguments) == 2 and arguments[0] == "--check":
        with open(arguments[1], "rb") as file:
            return 0 if file.read() == make_log() else "%s is not what is made here" % arguments[1]
    return __doc__


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
