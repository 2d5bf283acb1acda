"""City time and daylight saving told a second time, for comparison with the program: plain arithmetic on texts and dates,
written from the rules and not from the program."""

import datetime
import math


def divide(a, b):
    """Quotient towards zero, and the remainder with the sign of `a`."""
    return math.trunc(a / b), int(math.fmod(a, b))


def split(offset):
    return (offset, 0) if -100 <= offset <= 100 else divide(offset, 100)


def active(rule, now, year, exact):
    """`rule`: five integers. `exact`: to the hour."""
    hours, start_day, start_hour, end_day, end_hour = rule
    if hours == 0:
        return False
    first = datetime.datetime(year, 1, 1)
    start = first + datetime.timedelta(days=start_day - 1, hours=start_hour if exact else 0)
    end = first + datetime.timedelta(days=end_day - 1, hours=end_hour if exact else 0)
    if end.month < start.month:
        end = end.replace(year=year + 1)
    return start <= now <= end


def with_daylight(offset, hours):
    return offset + (hours if -100 <= offset <= 100 else hours * 100)


def reference(city, sync, bias, now):
    if sync:
        return divide(bias, -60)[0], divide(bias, 60)[1]
    offset, rule = city
    return split(with_daylight(offset, rule[0]) if active(rule, now, now.year, True) else offset)


def shift(offset, ref):
    hours, minutes = split(offset)
    carried, minute_shift = divide(minutes - ref[1], 60)
    return carried - ref[0] + hours, minute_shift


def local(offset, ref, now):
    """Time text and date of a city."""
    hours, minutes = shift(offset, ref)
    minute, carry = now.minute, 0
    if minutes != 0:
        minute += minutes
        if minute > 59:
            minute, carry = minute - 60, 1
        elif minute < 0:
            minute, carry = minute + 60, -1
    total = hours + carry
    hour = now.hour + total
    hour = hour + 24 if hour < 0 else hour
    hour = hour - 24 if hour >= 24 else hour
    days = -1 if total < 0 and now.hour < -total else 1 if total > 0 and now.hour + total > 23 else 0
    text = ":".join(("0" if part < 10 else "") + str(part) for part in (hour, minute, now.second))
    return text, now.date() + datetime.timedelta(days=days)


def world_clock(city, ref, now):
    """Effective offset, whether daylight saving is on, time text, date."""
    offset, rule = city
    today = datetime.datetime.combine(local(offset, ref, now)[1], datetime.time())
    dst = active(rule, today, now.year, False)
    effective = with_daylight(offset, rule[0]) if dst else offset
    return (effective, dst) + local(effective, ref, now)


def date_text(date, long):
    return f"{date.day:02}/{date.month:02}" + (f"/{date.year:04}    " if long else " ") + f"{date:%a}"
