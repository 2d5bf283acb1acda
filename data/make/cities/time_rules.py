"""Turns a zone of the tz database into the one offset and daylight-saving rule that a city line can hold."""

import datetime
import functools
import math
import zoneinfo
from typing import NamedTuple

MINUTES_PER_DAY = 1440
SAMPLE_MINUTES = 15
SAMPLE_MARGIN = 14 * 60  # no zone is further than this from UTC


class Rule(NamedTuple):
    """Offset and daylight saving of one place.

    offset: minutes east of UTC in standard time.  hours: what daylight saving adds, 0 = never observed.
    start, end: minutes of the year; start in standard wall time, end in daylight wall time.  end 0 with hours
    above 0 means that daylight saving lasts to the end of the year.
    """

    offset: int
    hours: int = 0
    start: int = 0
    end: int = 0

    def is_daylight(self, standard_minute):
        """True in daylight saving; STANDARD_MINUTE is the minute of the year in standard wall time."""
        if not self.hours:
            return False
        end = self.end - 60 * self.hours if self.end else 0
        if self.start < end:
            return self.start <= standard_minute < end
        return standard_minute >= self.start or standard_minute < end

    def offset_at(self, utc_minute):
        """The offset in minutes at a minute of the year counted in UTC."""
        extra = 60 * self.hours if self.is_daylight(utc_minute + self.offset) else 0
        return self.offset + extra

    def fields(self):
        """The six rule fields of a city line."""
        if not self.hours:
            return (encode_offset(self.offset), 0, 0, 0, 0, 0)
        return (encode_offset(self.offset), self.hours, *day_and_hour(self.start), *day_and_hour(self.end))


def encode_offset(minutes):
    """Whole hours as they are (-5), all else as hours * 100 + minutes with one sign (530, -330)."""
    hours, rest = divmod(abs(minutes), 60)
    if rest and not hours:
        raise ValueError(f"an offset of {minutes} minutes cannot be written: it would read as hours")
    value = hours * 100 + rest if rest else hours
    return -value if minutes < 0 else value


def day_and_hour(minute_of_year):
    """Day of the year counted from 1, hour of that day."""
    return minute_of_year // MINUTES_PER_DAY + 1, minute_of_year % MINUTES_PER_DAY // 60


def year_start(year):
    return datetime.datetime(year, 1, 1, tzinfo=datetime.timezone.utc)


def minutes_between(begin, end):
    return int((end - begin).total_seconds()) // 60


def offset_changes(zone, begin, end):
    """Returns ((minute since BEGIN, offset in minutes), ...): the offset at BEGIN, then each change up to END."""
    tz = zoneinfo.ZoneInfo(zone)

    def offset(minute):
        moment = begin + datetime.timedelta(minutes=minute)
        return int(moment.astimezone(tz).utcoffset().total_seconds()) // 60

    last = minutes_between(begin, end)
    changes = [(0, offset(0))]
    for day in range(0, last, MINUTES_PER_DAY):
        before, after = day, min(day + MINUTES_PER_DAY, last)
        if offset(before) == offset(after):
            continue
        while after - before > 1:
            middle = (before + after) // 2
            if offset(middle) == offset(before):
                before = middle
            else:
                after = middle
        changes.append((after, offset(after)))
    return tuple(changes)


@functools.lru_cache(maxsize=None)
def changes_of_year(zone, year):
    """The offset changes of a UTC year: two zones with equal changes have the same clocks all year."""
    return offset_changes(zone, year_start(year), year_start(year + 1))


@functools.lru_cache(maxsize=None)
def changes_around_year(zone, year):
    """The same with two days on either side, minutes counted from the start of the UTC year."""
    margin = datetime.timedelta(days=2)
    changes = offset_changes(zone, year_start(year) - margin, year_start(year + 1) + margin)
    return tuple((minute - 2 * MINUTES_PER_DAY, offset) for minute, offset in changes)


def true_samples(changes, year_minutes):
    """[(UTC minute, true offset)] every quarter of an hour whose local date lies in the year."""
    samples, upcoming = [], list(changes[1:])
    offset = changes[0][1]
    for minute in range(-SAMPLE_MARGIN, year_minutes + SAMPLE_MARGIN, SAMPLE_MINUTES):
        while upcoming and upcoming[0][0] <= minute:
            offset = upcoming.pop(0)[1]
        if 0 <= minute + offset < year_minutes:
            samples.append((minute, offset))
    return samples


def whole_hours_around(minute):
    return {60 * math.floor(minute / 60), 60 * math.ceil(minute / 60)}


def daylight_candidates(changes, standard, daylight):
    """Every rule that goes between two offsets at changes that did happen, or never comes back."""
    starts, ends = {0}, {0}
    for (_, before), (minute, after) in zip(changes, changes[1:]):
        if (before, after) == (standard, daylight):
            starts |= whole_hours_around(minute + standard)
        if (before, after) == (daylight, standard):
            ends |= whole_hours_around(minute + daylight)
    hours = (daylight - standard) // 60
    return [Rule(standard, hours, start, end) for start in starts for end in ends if start != end]


@functools.lru_cache(maxsize=None)
def fit_rule(changes, year_minutes):
    """Returns (rule, wrong minutes): the rule that disagrees least with the changes of the year."""
    samples = true_samples(changes, year_minutes)
    offsets = sorted({offset for _, offset in samples})
    candidates = [Rule(offset) for offset in offsets]
    for standard in offsets:
        for daylight in offsets:
            if daylight > standard and (daylight - standard) % 60 == 0:
                candidates += daylight_candidates(changes, standard, daylight)

    def cost(rule):
        wrong = sum(SAMPLE_MINUTES for minute, offset in samples if rule.offset_at(minute) != offset)
        return wrong, rule.hours, rule

    best = min(candidates, key=cost)
    return best, cost(best)[0]


def rule_for(zone, day):
    """Returns (rule, wrong minutes, settled) for the year of DAY, a date.

    A zone that changes no clock in the twelve months after DAY has settled: it gets its offset of that day and no
    daylight saving, even where it changed earlier in the year.
    """
    begin = datetime.datetime(day.year, day.month, day.day, tzinfo=datetime.timezone.utc)
    ahead = offset_changes(zone, begin, begin + datetime.timedelta(days=365))
    year_minutes = minutes_between(year_start(day.year), year_start(day.year + 1))
    best, wrong = fit_rule(changes_around_year(zone, day.year), year_minutes)
    settled = Rule(ahead[0][1])
    if len(ahead) == 1 and settled != best:
        return settled, 0, True
    return best, wrong, False
