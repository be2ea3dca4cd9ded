#!/usr/bin/env python3
"""Occurrences of a folder of files by well and discipline, less the lines that are named.

usage: count_occurrences.py FOLDER [LINE...]"""
import collections
import csv
import pathlib
import sys

folder, left = pathlib.Path(sys.argv[1]), {int(line) for line in sys.argv[2:]}
with open(folder / "samples.csv", newline="", encoding="utf-8") as file:
    wells = {row["samp_id"]: row["well_code"] for row in csv.DictReader(file)}
counts = collections.Counter()
with open(folder / "occurrences.csv", newline="", encoding="utf-8") as file:
    rows = csv.DictReader(file)
    for row in rows:
        if rows.line_num not in left:
            counts[f"{wells[row['samp_id']]}|{row['disc_id']}"] += 1
for place, count in sorted(counts.items()):
    print(f"{place}|{count}")
