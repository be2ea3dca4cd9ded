// app/import/Interpretation.h
#pragma once

#include "app/import/DepthSamples.h"
#include "app/import/Numbered.h"
#include "app/import/RockIntervals.h"
#include "store/EnvironmentWriter.h"
#include "store/LithologyWriter.h"
#include "store/PickWriters.h"
#include "store/SchemeWriter.h"
#include "store/TermWriter.h"
#include "store/ZoneWriter.h"

/// What the loaders of interpretations share: the schemes, terms, rocks and surfaces of the
/// database and those that the rows of an import bring.
struct Interpretation {
    explicit Interpretation(Writing writing)
        : schemes(writing)
        , terms(writing)
        , zones(writing)
        , lithologies(writing)
        , surfaces(writing)
        , samples(writing)
    {
    }

    SchemeWriter schemes;
    TermWriter terms;
    Numbered<NamedEntry> numberedSchemes;
    Numbered<TermEntry> numberedTerms;
    ZoneWriter zones;
    LithologyWriter lithologies;
    Numbered<LithologyEntry> numberedLithologies;
    SurfaceWriter surfaces;
    Numbered<NamedEntry> numberedSurfaces;
    DepthSamples samples;
    RockIntervals rockIntervals;
};
