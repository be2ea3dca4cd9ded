// db/ColumnUse.h
#pragma once

/// How a result's column has been read so far.
enum class ColumnUse : unsigned char { None, Integer, Number, Text, Letter, Several };
