// taxonomy/Categories.h
#pragma once

/// The categories in the order of their mnemonics, each as mnemonic, one blank and name, at most 59
/// bytes; at most 100, ended by a null pointer. Read when first asked for and whenever `reload` is
/// not 0, which rewrites the texts in place. A failed statement is reported and ends the process
/// with status 0.
const char* const* categoryList(int reload);

/// The name of a category of `categoryList`; empty when there is none. The mnemonic, at most 15
/// bytes, must match exactly. Valid until the next call.
const char* categoryName(const char* mnemonic);

/// The discipline letter of a category; a blank when it is unknown. A failed statement ends the
/// process.
char categoryDisc(const char* cat_mnem);
