// app/batch/TaxonCommands.h
#pragma once

#include "app/batch/BatchOptions.h"

#include <string>
#include <vector>

// Commands on names. Each returns the exit status.

/// Lists names of the dictionary in the order of genus, species and subspecies.
int listTaxa(const TaxaQuery& query);

/// Shows the slots that a written name is read into, the name that the system composes of them,
/// upright and italic, and with a database its entries.
int showTaxon(const std::vector<std::string>& words, bool hasDatabase);

/// A composed name with its italics, which backslashes switch: by escape sequences on a terminal,
/// else between underscores. Blanks at the end of an italic run stay upright.
std::string withItalics(std::string_view marked, bool terminal);
