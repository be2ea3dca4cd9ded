// app/batch/InterpretationArguments.h
#pragma once

#include <memory>
#include <string>
#include <vector>

class IGDList;
namespace CLI {
class App;
}
struct LoadedWell;

/// Which of a well's interpretations, and of that which zones.
struct ZoneQuery {
    std::string well;
    std::string type;   ///< a number or the name of a type
    std::string ranks;  ///< "A-B" or one rank; empty: all
    long interp_id = 0; ///< 0: the default one
    char units = 0;     ///< 0: those of the well
};

/// The code of an interpretation type from its number, its name or the letter-case-blind name of
/// any; 0 after telling the standard error stream which there are.
int typeOf(const std::string& text);

/// The option that names an interpretation.
void addInterpretation(CLI::App* command, long* interp_id);

/// All records of one type of a loaded well; what the loading told goes to the standard error
/// stream.
std::unique_ptr<IGDList> recordsOf(LoadedWell& loaded, int type, long interp_id, char units);

/// The zones of one type of a loaded well; what the loading told goes to the standard error stream.
std::unique_ptr<IGDList> zonesOf(
    LoadedWell& loaded, int type, int firstRank, int lastRank, long interp_id, char units);

/// The types whose records are zones.
inline constexpr int kZoneTypes[] = {3, 2, 4, 10};
inline constexpr int kWidestRank = 1;
inline constexpr int kFinestRank = 8;
