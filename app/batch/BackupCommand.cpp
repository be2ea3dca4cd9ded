// app/batch/BackupCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/shell/Backup.h"
#include "util/TextUtil.h"

#include <iostream>

namespace {

int backUp(const ConnectionSettings& connection, const std::string& file)
{
    const BackupResult made = backUpDatabase(connection, file);
    if (!made.error.empty())
        return failed(made.error);
    std::cout << "Copied to " << file << ": " << made.bytes << " bytes in "
              << fixedString(made.seconds, 1) << " s, examined and found whole\n";
    return kDone;
}

} // namespace

void addBackup(CLI::App& app, BatchOptions* options)
{
    const auto file = std::make_shared<std::string>();
    addCommand(
        app, options, "backup",
        "Copy an embedded database while it is in use; a file that is there is left as it is",
        [=] { return backUp(options->connection, *file); }, DatabaseNeed::AsIs)
        ->add_option("FILE", *file, "The new file")
        ->required();
}
