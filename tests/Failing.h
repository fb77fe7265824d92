// What a call failed with, for tests that look at the whole failure.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "pagebind/Failure.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// The test fails, and the emptied record comes back, when the call raises nothing.
template<class F>
Failure FailureOf(F&& fnCall) {
    try {
        fnCall();
    } catch (const Failure& oFailure) {
        return oFailure;
    }
    ADD_FAILURE() << "nothing was raised";
    return {};
}

// What a call yields, as Value shows it; or what the number of its failure stands for: "Type mismatch".
template<class F>
std::string OutcomeOf(F&& fnCall) {
    try {
        return Value(fnCall()).ToString();
    } catch (const Failure& oFailure) {
        return Failure::Of(static_cast<FailureNumber>(oFailure.Number())).Description();
    }
}

} // namespace GleanerSvc
