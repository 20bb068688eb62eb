#!/usr/bin/env python3
"""Makes plan.tbl, the example's table: twelve drinks at four depots over 24 weeks.

    make_plan.py            writes plan.tbl beside this script
    make_plan.py --check    fails when plan.tbl is not what this script makes
"""

import datetime
import pathlib
import random
import sys

FIRST_WEEK = datetime.date(2026, 1, 5)
WEEKS = 24
MONTHS = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()

# Name, price of a case, cases a week at a depot of size 1, how much summer adds, cases a truckload.
ITEMS = [
    ("Apple juice", 14.90, 420, 0.1, 600),
    ("Cherry juice", 18.40, 160, 0.1, 300),
    ("Orange juice", 16.20, 510, 0.0, 600),
    ("Tomato juice", 15.75, 90, -0.1, 200),
    ("Iced tea lemon", 9.80, 380, 0.9, 600),
    ("Iced tea peach", 9.80, 460, 0.9, 600),
    ("Mineral water", 4.35, 1450, 0.4, 1800),
    ("Sparkling water", 4.60, 1280, 0.5, 1800),
    ("Elderflower soda", 11.25, 130, 0.6, 200),
    ("Ginger ale", 12.10, 210, 0.2, 300),
    ("Tonic water", 12.40, 240, 0.3, 300),
    ("Cold brew coffee", 21.60, 75, 0.7, 100),
]

# Name, size.
DEPOTS = [("Bremen", 1.3), ("Gdansk", 0.8), ("Lyon", 1.0), ("Turin", 0.9)]

# Sold out and given up: from this week on there is no demand and no supply.
ENDS = {("Tomato juice", "Turin"): 15}
# The supplier fails in these weeks, and the stock runs short.
NO_SUPPLY = {("Iced tea peach", "Lyon"): range(9, 14)}

FIELDS = [
    ("Item", "String"),
    ("Location", "String"),
    ("Period", "Period"),
    ("Demand", "Number"),
    ("Supply", "Number"),
    ("Storage", "Number"),
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
    """Demand, supply, storage and activity for each week of an item at a depot."""
    name, _, cases, summer, load = item
    place, size = depot
    usual = cases * size
    storage = round(usual * (1.5 + draw.random()))
    for week in range(WEEKS):
        active = week < ENDS.get((name, place), WEEKS)
        expected = usual * (1 + summer * season(week))
        demand = round(expected * (0.8 + 0.4 * draw.random())) if active else 0
        supply = 0
        if active and week not in NO_SUPPLY.get((name, place), ()):
            while storage + supply - demand < expected:
                supply += load
        storage += supply - demand
        yield demand, supply, storage, active


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
        "# Cases a week, price of a case; storage is what is left at the end of the week",
    ]
    record = 0
    for item in ITEMS:
        for depot in DEPOTS:
            for week, (demand, supply, storage, active) in enumerate(series(item, depot, draw)):
                record += 1
                values = [item[0], depot[0], week_name(week), demand, supply, storage]
                values += [f"{item[1]:.2f}", "Yes" if active else "No"]
                lines.append("\t".join(map(str, values)) + "\t### " + notes(record))
    return "\n".join(lines) + "\n"


def main():
    path = pathlib.Path(__file__).with_name("plan.tbl")
    if "--check" in sys.argv[1:]:
        if path.read_bytes() != table().encode():
            sys.exit("plan.tbl is not what make_plan.py makes")
        return
    path.write_bytes(table().encode())


if __name__ == "__main__":
    main()
