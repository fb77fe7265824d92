#include "pagebind/Value.h"

#include <gtest/gtest.h>

#include <limits>

#include "pagebind/KeyedCollection.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

const Value AnObject = std::make_shared<KeyedCollection>();
constexpr const char* Bad = "Type mismatch";

TEST(ValueTest, ConvertsToWhatHasAMeaningInTheWantedType) {
    const struct {
        Value vValue;
        const char* sBool;
        const char* sInt16;
        const char* sInt32;
        const char* sDouble;
        const char* sText; // in quotes
    } aoCases[] = {
        {{}, "False", "0", "0", "0", "\"\""},
        {true, "True", "-1", "-1", "-1", "\"True\""},
        {std::int16_t{-32768}, "True", "-32768", "-32768", "-32768", "\"-32768\""},
        {40000, "True", "Overflow", "40000", "40000", "\"40000\""},
        {-0.25, "True", "0", "0", "-0.25", "\"-0.25\""},
        {3.5, "True", "4", "4", "3.5", "\"3.5\""},
        {1234567.0, "True", "Overflow", "1234567", "1234567", "\"1234567\""},
        {1e15, "True", "Overflow", "Overflow", "1e+15", "\"1e+15\""},
        {0.000123456789012345, "True", "0", "0", "0.000123456789012345", "\"0.000123456789012345\""},
        {" 12 ", "True", "12", "12", "12", "\" 12 \""},
        {"fALSE", "False", Bad, Bad, Bad, "\"fALSE\""},
        {"", Bad, Bad, Bad, Bad, "\"\""},
        {Date(2.75), "True", "3", "3", "2.75", Bad},
        {AnObject, Bad, Bad, Bad, Bad, Bad},
        {nullptr, Bad, Bad, Bad, Bad, Bad},
        {Int32Array{1}, Bad, Bad, Bad, Bad, Bad},
    };
    for (const auto& oCase : aoCases) {
        SCOPED_TRACE(oCase.vValue.ToString());
        EXPECT_EQ(OutcomeOf([&] { return oCase.vValue.ToBool(); }), oCase.sBool);
        EXPECT_EQ(OutcomeOf([&] { return oCase.vValue.ToInt16(); }), oCase.sInt16);
        EXPECT_EQ(OutcomeOf([&] { return oCase.vValue.ToInt32(); }), oCase.sInt32);
        EXPECT_EQ(OutcomeOf([&] { return oCase.vValue.ToDouble(); }), oCase.sDouble);
        EXPECT_EQ(OutcomeOf([&] { return oCase.vValue.ToText(); }), oCase.sText);
    }
}

TEST(ValueTest, DatesObjectsAndArraysReadAsThemselvesOnly) {
    EXPECT_EQ(Value(Date(2.75)).ToDate(), Date(2.75));
    EXPECT_EQ(Value(36585).ToDate(), Date(36585));
    EXPECT_EQ(OutcomeOf([] { return Value("1").ToDate(); }), Bad);
    EXPECT_EQ(AnObject.To<IKeyedCollection>(), AnObject.ToObject());
    EXPECT_EQ(Value().ToObject(), nullptr);
    EXPECT_EQ(OutcomeOf([] { return Value("1").ToObject(); }), Bad);
    EXPECT_EQ(OutcomeOf([] { return Value(1).ToInt32Array(); }), Bad);
    EXPECT_EQ(Value(ObjectArray{nullptr, AnObject.ToObject()}).ToObjectArray().back(), AnObject.ToObject());
    EXPECT_EQ(OutcomeOf([] { return Value(Int32Array{1}).ToObjectArray(); }), Bad);
}

TEST(ValueTest, ShowsItselfInAReport) {
    std::string sAll;
    for (const Value& vValue : {Value(), Value("a b"), Value(true), Value(1.5), Value(Date(2.5)),
                                Value(nullptr), AnObject, Value(Int32Array{1, -2}), Value(ObjectArray(2))}) {
        sAll += vValue.ToString() + "; ";
    }
    EXPECT_EQ(sAll, "empty; \"a b\"; True; 1.5; date 2.5; nothing; object; [1, -2]; 2 objects; ");
}

} // namespace
} // namespace GleanerSvc
