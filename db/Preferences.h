// db/Preferences.h
#pragma once

#include <cstddef>
#include <string>

// Per-user settings: short keys (at most 10 bytes) with text values, kept in PREF_USER. A missing
// setting is no error: the readers return 0 and leave the caller's value, its default, as it is.
//
// A longer key is reported and used all the same; the operations that are built on another one test
// it once more each. While `fatalError` is set every operation returns 0 and sends nothing. A
// failed statement is reported, never fatally, and gives 0.

/// 1 when the setting exists; its text, without trailing blanks, goes to `value`, which must have
/// room for 300 bytes.
int prefGet(int user, const char* key, char* value);
/// The same for a buffer of `size` bytes; a longer text is cut at a character border.
int prefGet(int user, const char* key, char* value, std::size_t size);
/// The same, whole.
int prefGet(int user, const char* key, std::string& value);
/// Writes the setting, the empty text as NULL. 1 when written, 0 on failure. Not committed.
int prefPut(int user, const char* key, const char* value);

/// 1 when the setting exists and is not empty. A text that begins with no number leaves `*value`.
int prefGetInt(int user, const char* key, int* value);
int prefPutInt(int user, const char* key, int value);
/// As the integer forms; written with six decimals.
int prefGetFloat(int user, const char* key, float* value);
int prefPutFloat(int user, const char* key, float value);
