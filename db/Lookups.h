// db/Lookups.h
#pragma once

// Small lookups by key. Texts stay valid until the same lookup is called again.

/// Discipline letter of a species; a blank when there is no row. Failure: fatal report.
char speciesDisc(long spec_id);
/// Category mnemonic of a species, at most 19 bytes; a single blank when there is no row. Failure:
/// fatal report.
const char* speciesCategory(long spec_id);
/// Code of a well, at most 25 bytes; empty when there is no row or the query failed.
const char* wellCodeOf(long well_id);
/// Copies the name of an interpretation scheme (at most 80 bytes) into `buffer`, empty when not
/// found. 1 when found, else 0. Failure: fatal report.
int schemeNameOf(int sch_id, char* buffer);
/// Units letter of a well; 0 when there is no row.
char wellUnits(long well_id);
/// Name of a well; empty when there is no row.
const char* wellNameOf(long well_id);
/// Identifier of a well code; 0 when there is no row or after a failed query, which is reported.
long wellIdOf(const char* well_code);
