// app/batch/WellArgument.cpp
#include "app/batch/WellArgument.h"

#include "app/batch/Failure.h"
#include "app/shell/FindWell.h"
#include "app/shell/WellLoading.h"
#include "taxonomy/Disciplines.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <iostream>

std::unique_ptr<LoadedWell> wellOf(const std::string& text)
{
    std::string error;
    const long id = findWell(text, &error);
    if (id != 0)
        return std::make_unique<LoadedWell>(id);
    failed(error);
    return nullptr;
}

std::unique_ptr<LoadedWell> sampledWellOf(const std::string& text)
{
    std::unique_ptr<LoadedWell> loaded = wellOf(text);
    if (loaded)
        loaded->well.LoadSamples(0);
    return loaded;
}

std::unique_ptr<LoadedWell> loadedWellOf(const std::string& text)
{
    std::unique_ptr<LoadedWell> loaded = wellOf(text);
    if (!loaded)
        return nullptr;
    for (const LoadStep& step : loadAll(*loaded))
        writeReports(step);
    return loaded;
}

void writeReports(const LoadStep& step)
{
    for (const std::string& report : step.reports)
        std::cerr << step.name << ": " << report << '\n';
}

char disciplineOf(const std::string& text)
{
    std::string known;
    for (const char letter : std::string_view(discLetters)) {
        const std::string name = disciplineName(letter);
        if (compareIgnoringCase(text, std::string(1, letter)) == 0
            || compareIgnoringCase(text, name) == 0)
            return letter;
        known += (known.empty() ? "" : ", ") + std::string(1, letter) + " (" + name + ')';
    }
    failed("There is no discipline " + text + ". There are: " + known + '.');
    return 0;
}

std::string depthText(float depth) { return isAbsentDepth(depth) ? "" : fixedString(depth, 2); }

std::string sampleDepthText(const Sample& sample, char units)
{
    constexpr int kShort = 1, kWithRange = 1, kNoForce = 0, kNoShift = 0, kNoLabel = 0;
    const bool hasDepth = !isAbsentDepth(sample.GetDepth(units, 0, 0));
    return hasDepth ? sample.DepthLabel(units, kShort, kWithRange, kNoForce, kNoShift, kNoLabel)
                    : "";
}

std::string unitTitle(char units) { return units == 'F' ? " [ft]" : " [m]"; }
