// app/batch/WellArgument.h
#pragma once

#include "app/shell/WellLoading.h"

#include <memory>
#include <string>

/// The well that a user means, with its header; null after telling the standard error stream why
/// there is none.
std::unique_ptr<LoadedWell> wellOf(const std::string& text);

/// The same with its samples.
std::unique_ptr<LoadedWell> sampledWellOf(const std::string& text);

/// The same with all that its loaders read; what they told goes to the standard error stream.
std::unique_ptr<LoadedWell> loadedWellOf(const std::string& text);

/// A line per report on the standard error stream, behind what was being read.
void writeReports(const LoadStep& step);

/// The discipline that a user means by its letter, in either case, or its name; 0 after telling the
/// standard error stream which there are.
char disciplineOf(const std::string& text);

/// "1010.00", or nothing when there is no depth.
std::string depthText(float depth);

/// The depth of a sample in `units`, with its top when it is an interval; as short labels have it.
std::string sampleDepthText(const Sample& sample, char units);

/// " [m]" or " [ft]", for the title of a column.
std::string unitTitle(char units);
