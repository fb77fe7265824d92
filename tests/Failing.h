// What a call failed with, for tests that look at the whole failure.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

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

// Each call fails, and names that: "5 Collection: The collection has no item under the key".
using Troubles = std::vector<std::pair<std::function<void()>, std::string>>;
inline void ExpectTroubles(const Troubles& aoCases) {
    for (const auto& [fnCall, sNamed] : aoCases) {
        const std::string sTrouble = FailureOf(fnCall).ToString();
        EXPECT_NE(sTrouble.find(sNamed), std::string::npos) << sTrouble << " instead of " << sNamed;
    }
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
