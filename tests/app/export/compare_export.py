#!/usr/bin/env python3
# Compares an export with the files that were imported before it, column by column, without the
# program's code:    compare_export.py EXPORT SOURCE [FILE:LINE that the import refused]...
# A line per file: how many rows were compared, lost and made up; the first of these behind it.
import csv, os, re, sys
from collections import Counter

export, source = sys.argv[1:3]
refused = set(sys.argv[3:])

def rows(folder, name):
    with open(os.path.join(folder, name), encoding="utf-8", newline="") as file:
        reader = csv.DictReader(file)
        return [row for row in reader if f"{name}:{reader.line_num}" not in refused
                or folder == export]

def metres(text, unit="m"):
    return round(float(text) * (0.3048 if unit == "ft" else 1), 2) if text else None

def first(row, *names):
    return next((row[name] for name in names if row.get(name) not in (None, "", "0")), "")

def letters(*texts): # the dictionary has one word for each mark
    return re.sub(r"\W", "", re.sub(r"\bgroup\b", "grp", " ".join(texts))).lower()

def compare(what, before, after):
    lost, made = Counter(before) - Counter(after), Counter(after) - Counter(before)
    print(what, len(before), lost.total(), made.total())
    for row in list(lost)[:2]:
        print("  lost", row)
    for row in list(made)[:2]:
        print("  made up", row)

def by(key, table):
    return {row[key]: row for row in table}

def has(name):
    return os.path.exists(os.path.join(source, name))

if has("occurrences.csv"):
    def key(row):
        return (row["well_code"], metres(row["top_depth_m"]), metres(row["base_depth_m"]),
                row["type"], row["label"])
    old, new = (by("samp_id", rows(folder, "samples.csv")) for folder in (source, export))
    compare("samples", set(map(key, old.values())),
            {key(row) for row in new.values() if row["type"] != "LOG"})
    taxa = by("spec_id", rows(source, "taxa.csv"))
    genera = by("gen_id", rows(export, "genus.csv"))
    species = by("spec_id", rows(export, "species.csv"))
    def name(row):
        genus = genera[row["gen_id"]]
        return letters(*(genus[part] for part in ("q1", "genus", "q2", "q3", "sub_genus", "q4")),
                       *(row[part] for part in ("q1", "species", "q2", "q3", "sub_spec", "q4")))
    compare("occurrences",
        [(key(old[row["samp_id"]]), letters(taxa[row["spec_id"]]["name"]), row["disc_id"],
          row["ident_type"] == "?", row.get("status") == "R", row.get("preservation", ""),
          first(row, "abundance_text", "raw_value", "abund", "count", "percent"))
         for row in rows(source, "occurrences.csv")],
        [(key(new[row["samp_id"]]), name(species[row["spec_id"]]), row["disc_id"],
          row["ident_type"] == "?", row["status"] == "R", row["preserv"],
          first(row, "abundance", "abund", "medium", "percent"))
         for row in rows(export, "taxonocc.csv")])

if has("formation_tops.csv"):
    compare("formation_tops",
        [(row["well_code"], metres(row["top_md_m"]), metres(row["base_md_m"]), row["unit_name"])
         for row in rows(source, "formation_tops.csv")],
        [(row["well_code"], metres(row["top_sample_depth_m"]), metres(row["base_sample_depth_m"]),
          row["upper_term"]) for row in rows(export, "igd.csv")])

if has("cores.csv"):
    compare("cores",
        [(row["well_code"], row["core_number"], metres(row["top_depth"], row["depth_unit"]),
          metres(row["base_depth"], row["depth_unit"])) for row in rows(source, "cores.csv")],
        [(row["well_code"], row["corenum"], metres(row["top_depth_m"]),
          metres(row["base_depth_m"])) for row in rows(export, "cores.csv")])
