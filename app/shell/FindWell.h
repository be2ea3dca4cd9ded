// app/shell/FindWell.h
#pragma once

#include <string>

/// The well that a user means by `text`: its code, else its name, else its number. Returns
/// WELL_IDENT.well_id, or 0 with a text for the user in `*error`: no such well, several wells of
/// that name (each named with its code), or a failed statement.
long findWell(const std::string& text, std::string* error);
