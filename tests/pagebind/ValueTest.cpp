#include "pagebind/Value.h"

#include <gtest/gtest.h>

#include "pagebind/KeyedCollection.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

const Value AnObject = std::make_shared<KeyedCollection>();
const std::string Bad = "Type mismatch ";

TEST(ValueTest, ConvertsToWhatHasAMeaningInTheWantedType) {
    // As a truth value, as an integer of 16 and of 32 bits, as a number, and as text in quotes.
    const std::pair<Value, std::string> aoCases[] = {
        {{}, R"(False 0 0 0 "")"},
        {true, R"(True -1 -1 -1 "True")"},
        {std::int16_t{-7}, R"(True -7 -7 -7 "-7")"},
        {40000, R"(True Overflow 40000 40000 "40000")"},
        {-0.25, R"(True 0 0 -0.25 "-0.25")"},
        {1e15, R"(True Overflow Overflow 1e+15 "1e+15")"},
        {" 12 ", R"(True 12 12 12 " 12 ")"},
        {"fALSE", "False " + Bad + Bad + Bad + R"("fALSE")"},
        {"", Bad + Bad + Bad + Bad + R"("")"},
        {Date(2.75), "True 3 3 2.75 Type mismatch"},
        {AnObject, Bad + Bad + Bad + Bad + "Type mismatch"},
        {nullptr, Bad + Bad + Bad + Bad + "Type mismatch"},
        {Int32Array{1}, Bad + Bad + Bad + Bad + "Type mismatch"},
    };
    for (const auto& [vHeld, sOutcomes] : aoCases) {
        const Value& vValue = vHeld;
        EXPECT_EQ(OutcomeOf([&] { return vValue.ToBool(); }) + " " +
                      OutcomeOf([&] { return vValue.ToInt16(); }) + " " +
                      OutcomeOf([&] { return vValue.ToInt32(); }) + " " +
                      OutcomeOf([&] { return vValue.ToDouble(); }) + " " +
                      OutcomeOf([&] { return vValue.ToText(); }),
                  sOutcomes)
            << vValue.ToString();
    }
}

TEST(ValueTest, DatesObjectsAndArraysReadAsThemselvesOnly) {
    EXPECT_EQ(Value(Date(2.75)).ToDate(), Date(2.75));
    EXPECT_EQ(Value(36585).ToDate(), Date(36585));
    EXPECT_EQ(OutcomeOf([] { return Value("1").ToDate(); }), "Type mismatch");
    EXPECT_EQ(AnObject.To<IKeyedCollection>(), AnObject.ToObject());
    EXPECT_EQ(Value().ToObject(), nullptr);
    EXPECT_EQ(OutcomeOf([] { return Value("1").ToObject(); }), "Type mismatch");
    EXPECT_EQ(OutcomeOf([] { return Value(1).ToInt32Array(); }), "Type mismatch");
    EXPECT_EQ(Value(ObjectArray{nullptr, AnObject.ToObject()}).ToObjectArray().back(), AnObject.ToObject());
    EXPECT_EQ(OutcomeOf([] { return Value(Int32Array{1}).ToObjectArray(); }), "Type mismatch");
}

} // namespace
} // namespace GleanerSvc
