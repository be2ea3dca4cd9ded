// util/TextUtil.h
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Small operations on terminated texts that the folders share. In place unless said otherwise.
// Bytes are classed as in the C locale whatever the user's locale is, numbers always have a point,
// and a well-formed UTF-8 character of several bytes counts as one letter: it is neither trimmed
// nor a separator nor cut in two. Static result texts stay valid until the same operation is
// called again.

/// Removes trailing white space, control characters and blanks. Returns the new length in bytes.
int trimRight(char* text);
std::string_view trimmedRight(std::string_view text);
/// Removes leading characters below "!" and lone bytes 128 to 255.
void trimLeft(char* text);
std::string_view trimmedLeft(std::string_view text);
/// Upper- or lower-cases ASCII letters, at most the first 1025 bytes.
void upperCase(char* text);
void lowerCase(char* text);
std::string upperCased(std::string_view text);
std::string lowerCased(std::string_view text);
/// Upper-cases the first character and each one behind a separator, lower-cases the others.
/// Separators: every character up to and including '0', ":;<=>?", "[\]^_", the backquote, and
/// lone bytes 128 to 255.
void titleCase(char* text);
std::string titleCased(std::string_view text);
/// Ends the text after `n` bytes, at a character border, then `trimRight`.
void cutAt(char* text, int n);

/// Compares ignoring ASCII letter case, bytes unsigned, letters folded to upper case.
/// Negative, 0, positive as strcmp.
int compareIgnoringCase(std::string_view a, std::string_view b);
/// Whether `text` contains `part`, ASCII letter case ignored.
bool containsIgnoringCase(std::string_view text, std::string_view part);

/// `n` in decimal digits, in a static text.
const char* intText(int n);
/// `x` rounded to `decimals` [0-..] decimals in a static text. What rounds to 0 from below keeps
/// its minus: "-0.00".
const char* fixedText(double x, int decimals);
/// As `fixedText` into `out`, without trailing zeros behind the point and without a final point.
/// `out` must have room for the untrimmed text.
void fixedTextTrim(char* out, double x, int decimals);
/// As `fixedText`, as a string.
std::string fixedString(double x, int decimals);
/// 2 to the power `n` for n in 0..30; 0 for any other `n`.
int pow2(int n);

/// The number at the start of the first `n` bytes of `text`; 0 when there is none. Values beyond
/// the result type are not defined, except that `longOf` and `longAt` give the 64-bit value, and
/// beyond that its nearest end.
float floatOf(const char* text, int n);
int intOf(const char* text, int n);
long longOf(const char* text, int n);
short shortOf(const char* text, int n);
/// The first `n` bytes of `text`, ended at a character border, `trimRight` applied. New: the caller
/// releases it with delete[].
char* textOf(const char* text, int n);
/// The number in the 10 bytes from `offset`; a text that ends earlier is read to its end.
long longAt(const char* text, int offset);

// Tab-separated fields. `cursor` points at the start of the next field; each reader moves it past
// the field and its separator. After the last field of a line it stands one past the terminator,
// so a caller reads exactly as many fields as the line has. A field may have any length; an empty
// one gives 0.
float readFloatField(const char** cursor);
long readLongField(const char** cursor);
int readIntField(const char** cursor);
short readShortField(const char** cursor);
/// The field with `trimRight` applied. New: the caller releases it with delete[].
char* readTextField(const char** cursor);

/// Appends blanks up to length `n`, or cuts to `n` bytes at a character border (then padded).
/// `text` must have room for `n` bytes and the terminator.
void padTo(char* text, int n);
/// Removes every `c`; returns the number removed.
int removeChar(char* text, char c);
/// Orders index[lo..hi] so that the texts they point at ascend (descend when `descending` is not
/// 0) by unsigned bytes; equal texts keep their order.
void sortIndex(const char** texts, int* index, int lo, int hi, int descending);
/// Splits `text` at every character of `delimiters`; `parts` must have room for each part. The
/// parts lie in a static text. An empty part behind a final delimiter is not counted; an empty
/// text is one empty part. A text of 500 bytes or more yields none.
void splitText(const char* text, char** parts, const char* delimiters, int* count);
/// With a "." in `text`: removes trailing zeros behind it and, when `dropPoint` is not 0, a final
/// point.
void stripZeros(char* text, int dropPoint);
/// `text` ended `n` digits behind its point (at the point for a negative `n`), in a static text.
const char* cutDecimals(const char* text, int n);
