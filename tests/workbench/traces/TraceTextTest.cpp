#include "workbench/traces/TraceText.h"

#include <gtest/gtest.h>

namespace GleanerSvc::Workbench {
namespace {

TEST(TraceTextTest, WhatIsNoUtf8IsLatin1AndControlsAreBlanks) {
    const std::pair<std::string_view, std::string_view> aoCases[] = {
        {"Sample 7", "Sample 7"},
        {"\xC3\x84rger \xE2\x82\xAC \xF0\x9F\xA7\xAC", "\xC3\x84rger \xE2\x82\xAC \xF0\x9F\xA7\xAC"},
        {"\xC4rger", "\xC3\x84rger"},
        {"\xE4\xFF", "\xC3\xA4\xC3\xBF"},
        {"cut \xE2\x82", "cut \xC3\xA2 "},                        // in the middle of a character
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                         // longer than it need be
        {"\xED\xA0\xBF", "\xC3\xAD\xC2\xA0\xC2\xBF"},             // half a pair
        {"\xF4\xA0\xA0\xA0", "\xC3\xB4\xC2\xA0\xC2\xA0\xC2\xA0"}, // beyond the last character
        {"a\nstored 9 b: PASS", "a stored 9 b: PASS"},
        {"\x1B[31mred\x7F", " [31mred "},
        {"\xC2\x9B"
         "31m",
         " 31m"}, // the same in one character
    };
    for (const auto& [sBytes, sText] : aoCases) EXPECT_EQ(TraceText(sBytes), sText);
}

} // namespace
} // namespace GleanerSvc::Workbench
