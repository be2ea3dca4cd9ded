// app/window/SampleTexts.cpp
#include "app/window/SampleTexts.h"

#include "app/window/DepthUnits.h"
#include "well/Sample.h"

#include <QCoreApplication>

namespace {

struct TypeWord {
    const char* code;
    const char* word;
};
constexpr TypeWord kTypeWords[] = {
    {"CU", "cuttings"},
    {"SC", "sidewall core"},
    {"CO", "core"},
    {"OC", "outcrop"},
    {"LOG", "log"},
};

} // namespace

QString sampleDepthText(const Sample& sample, char units)
{
    return depthText(sample.GetDepth('M', 0, 0), units);
}

QString sampleTypeWord(const Sample& sample)
{
    for (const TypeWord& type : kTypeWords) {
        if (sample.type == type.code)
            return QCoreApplication::translate("SampleTexts", type.word);
    }
    return {};
}
