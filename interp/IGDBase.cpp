// interp/IGDBase.cpp
#include "interp/IGDBase.h"

IGDBase::~IGDBase() = default;

int IGDBase::topBoundary() const { return 0; }

int IGDBase::baseBoundary() const { return 0; }

std::string IGDBase::label() const { return " "; }

float IGDBase::value() const { return 0; }
