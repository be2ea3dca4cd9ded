// taxonomy/SpeciesCase.h
#pragma once

#include <string>

/// Letter case of a species text: lower case, except what stands behind a leading "sp." and the
/// first of each working-name label (" SPT ", " SSI ", " RRI ", " MS ") inside the text.
void fixSpeciesCase(std::string& text);
