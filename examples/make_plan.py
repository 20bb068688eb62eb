#!/usr/bin/env python3
"""Makes plan.tbl, the example's table: twelve drinks at four depots over 24 weeks, and plan.per, which
says how long the weeks are.

    make_plan.py            writes both beside this script
    make_plan.py --check    fails when one of them is not what this script makes
"""

import datetime
import pathlib
import random
import sys

FIRST_WEEK = datetime.date(2026, 1, 5)
WEEKS = 24
MONTHS = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()

# Group, name, price of a case, cases a week at a depot of size 1, how much summer adds, cases a
# truckload.
ITEMS = [
    ("Juice", "Apple juice", 14.90, 420, 0.1, 600),
    ("Juice", "Cherry juice", 18.40, 160, 0.1, 300),
    ("Juice", "Orange juice", 16.20, 510, 0.0, 600),
    ("Juice", "Tomato juice", 15.75, 90, -0.1, 200),
    ("Tea and coffee", "Iced tea lemon", 9.80, 380, 0.9, 600),
    ("Tea and coffee", "Iced tea peach", 9.80, 460, 0.9, 600),
    ("Water", "Mineral water", 4.35, 1450, 0.4, 1800),
    ("Water", "Sparkling water", 4.60, 1280, 0.5, 1800),
    ("Soda", "Elderflower soda", 11.25, 130, 0.6, 200),
    ("Soda", "Ginger ale", 12.10, 210, 0.2, 300),
    ("Soda", "Tonic water", 12.40, 240, 0.3, 300),
    ("Tea and coffee", "Cold brew coffee", 21.60, 75, 0.7, 100),
]

# Name, size.
DEPOTS = [("Bremen", 1.3), ("Gdansk", 0.8), ("Lyon", 1.0), ("Turin", 0.9)]

# Sold out and given up: from this week on there is no demand and no supply.
ENDS = {("Tomato juice", "Turin"): 15}
# The supplier fails in these weeks, and the stock runs short.
NO_SUPPLY = {("Iced tea peach", "Lyon"): range(9, 14)}

# Weeks with a holiday: Good Friday, Easter Monday, May Day, Ascension Day, Whit Monday.
SHORT_WEEKS = [12, 13, 16, 18, 20]
WORKING_DAYS = 5

FIELDS = [
    ("Group", "String"),
    ("Item", "String"),
    ("Location", "String"),
    ("Period", "Period"),
    ("Demand", "Number"),
    ("Supply", "Number"),
    ("Opening", "Number"),
    ("Price", "Number"),
    ("Active", "Boolean"),
]


def week_name(week):
    day = FIRST_WEEK + datetime.timedelta(weeks=week)
    return f"{day.day:02}-{MONTHS[day.month - 1]}-{day.year}"


def season(week):
    """0 in the first week, 1 in the last: the weeks run from winter into summer."""
    return week / (WEEKS - 1)


def series(item, depot, draw):
    """Demand, supply, opening stock and activity for each week of an item at a depot. Stock is counted
    before the first week only."""
    _, name, _, cases, summer, load = item
    place, size = depot
    usual = cases * size
    opening = storage = round(usual * (1.5 + draw.random()))
    for week in range(WEEKS):
        active = week < ENDS.get((name, place), WEEKS)
        expected = usual * (1 + summer * season(week))
        demand = round(expected * (0.8 + 0.4 * draw.random())) if active else 0
        supply = 0
        if active and week not in NO_SUPPLY.get((name, place), ()):
            while storage + supply - demand < expected:
                supply += load
        storage += supply - demand
        yield demand, supply, opening if week == 0 else 0, active


def notes(record):
    """How the host knows each value of a line again."""
    return ",".join(f"plan/{record:04}/{name.lower()}" for name, _ in FIELDS)


def table():
    draw = random.Random(20260105)
    lines = [
        "# Supply plan of the soft drinks group",
        "FieldNames:" + "".join(name + "\t" for name, _ in FIELDS),
        "FieldTypes:" + "".join(kind + "\t" for _, kind in FIELDS),
        "PeriodValues:" + "".join(week_name(week) + "\t" for week in range(WEEKS)),
        "# Cases a week, price of a case; opening is the stock counted before the first week",
    ]
    record = 0
    for item in ITEMS:
        for depot in DEPOTS:
            for week, (demand, supply, opening, active) in enumerate(series(item, depot, draw)):
                record += 1
                values = [item[0], item[1], depot[0], week_name(week), demand, supply, opening]
                values += [f"{item[2]:.2f}", "Yes" if active else "No"]
                lines.append("\t".join(map(str, values)) + "\t### " + notes(record))
    return "\n".join(lines) + "\n"


def period_lengths():
    lines = ["# How much working time each week has: a holiday takes a day of it", "#"]
    for week in range(WEEKS):
        days = WORKING_DAYS - (week in SHORT_WEEKS)
        lines.append(f"{week_name(week)} weeks {days / WORKING_DAYS:g}")
        lines.append(f"{week_name(week)} days  {days}")
    return "\n".join(lines) + "\n"


def main():
    for name, make in [("plan.tbl", table), ("plan.per", period_lengths)]:
        path = pathlib.Path(__file__).with_name(name)
        if "--check" not in sys.argv[1:]:
            path.write_bytes(make().encode())
        elif path.read_bytes() != make().encode():
            sys.exit(f"{name} is not what make_plan.py makes")


if __name__ == "__main__":
    main()
