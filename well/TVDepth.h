// well/TVDepth.h
#pragma once

/// The measured and true vertical depths along a well.
class TVDepth {};
