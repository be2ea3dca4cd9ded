// store/Outcome.h
#pragma once

/// What putting a record did. Failed: the writer's `error` has the statement and the database's
/// text.
enum class Outcome { New, Changed, Same, Failed };

/// Check finds out what writing would do, reads only, and hands out the identifiers that writing
/// would.
enum class Writing { Check, Write };
