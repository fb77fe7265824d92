#include "pagebind/KeyedCollection.h"

#include <gtest/gtest.h>

#include "pagebind/Text.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

KeyedCollection& Fill(KeyedCollection& colItems, std::initializer_list<const char*> asKeys) {
    for (const char* sKey : asKeys) colItems.Add(sKey, sKey);
    return colItems;
}

TEST(KeyedCollectionTest, FindsByKeyInAnyCaseAndByPlaceFromOne) {
    KeyedCollection colItems;
    Fill(colItems, {"Project", "<<Skip"}).Add(7);
    EXPECT_EQ(colItems.Item("PROJECT").ToText(), "Project");
    EXPECT_EQ(colItems.Item("<<skip").ToText(), "<<Skip");
    EXPECT_EQ(colItems.Item(1).ToText(), "Project");
    EXPECT_EQ(colItems.Item(3.0).ToInt32(), 7);
    EXPECT_TRUE(colItems.Holds("pRoject"));
    EXPECT_FALSE(colItems.Holds("1")); // text is a key, never a place
    EXPECT_EQ(colItems.Count(), 3);
    EXPECT_EQ(colItems.ToString(), "project <<skip *");
}

TEST(KeyedCollectionTest, RefusedCallsNameTheKeyAndChangeNothing) {
    KeyedCollection colItems;
    Fill(colItems, {"Samples", "Study"});
    const std::pair<std::function<void()>, const char*> aoCases[] = {
        {[&] { colItems.Add(1, "SAMPLES"); },
         "457 Collection: This key is already associated with an element of this collection: \"SAMPLES\"."},
        {[&] { colItems.Item("Action"); },
         "5 Collection: The collection has no item under the key: \"Action\"."},
        {[&] { colItems.Remove(""); }, "5 Collection: The collection has no item under the key: \"\"."},
        {[&] { colItems.Item(0); }, "9 Collection: The collection has no item at place 0."},
        {[&] { colItems.Remove(3); }, "9 Collection: The collection has no item at place 3."},
        {[&] { colItems.Item(Value(nullptr)); }, "13 GleanerSvc: Type mismatch"},
    };
    for (const auto& [fnCall, sFailure] : aoCases) {
        EXPECT_EQ(FailureOf(fnCall).ToString(), sFailure);
        EXPECT_EQ(colItems.ToString(), "samples study");
    }
}

TEST(KeyedCollectionTest, RemovesAnywhereByKeyAndByPlace) {
    KeyedCollection colItems;
    Fill(colItems, {"a", "b", "c", "d", "e"}).Add("plain");
    colItems.Remove("C");
    colItems.Remove(1);
    colItems.Remove(4);
    EXPECT_EQ(colItems.ToString(), "b d e");
    colItems.Add("new", "C"); // a removed key is free again
    EXPECT_EQ(colItems.Item(4).ToText(), "new");
    EXPECT_EQ(colItems.Item("d").ToText(), "d");
    while (colItems.Count() > 0) colItems.Remove(colItems.Count());
    EXPECT_EQ(Fill(colItems, {"b"}).ToString(), "b");
}

// As many removals as make the collection close its gaps, several times over.
TEST(KeyedCollectionTest, KeysFindTheirItemsAfterManyRemovals) {
    KeyedCollection colItems;
    for (std::int32_t lID = 0; lID < 8000; ++lID) colItems.Add(lID, DecimalText(lID));
    for (std::int32_t lID = 0; lID < 8000; ++lID) {
        if (lID % 8 == 5) continue;
        colItems.Remove(DecimalText(lID));
        if (lID % 1000 == 999) colItems.Add(lID, "late" + DecimalText(lID));
    }
    ASSERT_EQ(colItems.Count(), 1008);
    for (std::int32_t lPlace = 1; lPlace <= 1000; ++lPlace) {
        const std::int32_t lID = (lPlace - 1) * 8 + 5;
        ASSERT_EQ(colItems.Item(lPlace).ToInt32(), lID);
        ASSERT_EQ(colItems.Item(DecimalText(lID)).ToInt32(), lID);
    }
    EXPECT_EQ(colItems.Item("LATE7999").ToInt32(), 7999);
    EXPECT_EQ(colItems.Item(1008).ToInt32(), 7999);
}

} // namespace
} // namespace GleanerSvc
