// tests/support/Workspace.h
#pragma once

#include <string>

/// The folder of temporary files of this test process. It goes, with everything in it, when the
/// process ends by itself, in a death test's own process too.
namespace workspace {

/// The path for a new file, different at each call, which ends in `name`. Makes no file.
std::string newFile(const std::string& name);

} // namespace workspace
