// well/CoredInt.h
#pragma once

#include <string>

/// A cored interval of a well and the shift that moves its depths onto those of the logs. Metres.
class CoredInt {
public:
    CoredInt(float topDepth, float baseDepth, const std::string& number, char recoveredFlag)
        : top(topDepth)
        , base(baseDepth)
        , corenum(number)
        , recovered(recoveredFlag)
    {
    }

    /// A shift that counts as zero means: that of the top.
    void SetBaseShift(float metres);
    /// 'Y' once it was seen with a shift at either end, else the character 0. A shift that is taken
    /// back leaves it.
    char IsShifted();
    /// `depth` shifted: by the shift of the top above the core, by that of the base below it,
    /// between them in proportion. Without a shift at the top the depth as it is. In and out in
    /// `units`.
    float ShiftDepth(float depth, char units) const;
    /// Multiplies depths and shifts by the factor from metres to feet for 'M', by the one from feet
    /// to metres for 'F': repairs values that were entered in the other unit.
    void ConvertUnits(char units);

    float top;
    float base;
    std::string corenum;
    char recovered;
    float shiftTop = 0;
    float shiftBase = 0;
    char shifted = '\0';

private:
    float shiftAt(float depth) const;
};
