#include "pagebind/Object.h"

#include <gtest/gtest.h>

#include "pagebind/Value.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

class IRed : public virtual IObject {};
class IBlue : public virtual IObject {};
class IGreen : public virtual IObject {};
class RedAndBlue final : public IRed, public IBlue {};

TEST(ObjectTest, CastSeesTheSameObjectThroughAnotherInterface) {
    const Ref<IRed> oRed = std::make_shared<RedAndBlue>();
    const Ref<IBlue> oBlue = Cast<IBlue>(oRed);
    EXPECT_EQ(Ref<IObject>(oBlue), Ref<IObject>(oRed));
    EXPECT_EQ(Cast<IBlue>(Ref<IRed>()), nullptr);
    EXPECT_TRUE(FailureOf([&] { Cast<IGreen>(oRed); }).Is(FailureNumber::TypeMismatch));
}

TEST(ObjectTest, WhatIsNotThereFails) {
    RedAndBlue oObject;
    EXPECT_EQ(FailureOf([] { Deref(Ref<IRed>()); }).ToString(), "91 GleanerSvc: Object variable not set");
    const std::string sNoMember = "438 Object: The object has no member \"Result\".";
    EXPECT_EQ(FailureOf([&] { oObject.GetMember("Result"); }).ToString(), sNoMember);
    EXPECT_EQ(FailureOf([&] { oObject.PutMember("Result", 1); }).ToString(), sNoMember);
}

} // namespace
} // namespace GleanerSvc
