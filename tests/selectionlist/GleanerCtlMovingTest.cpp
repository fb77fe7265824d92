#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

constexpr std::string_view TenAndTwo = "Alpha: A1 A2 A3 A4 A5 A6 A7 A8 A9 A10\nBeta: B1 B2";

// A list of one project with ten rows.
struct TenRows : ListScene {
    TenRows() : ListScene(TenAndTwo, "Raw Data") { ChooseProject(1); }
};

TEST(GleanerCtlMoving, ABlockMovesFromTheBottomUpAndTheRowBehindItIsHighlighted) {
    const struct {
        std::vector<std::int32_t> alRows;
        const char* sLists;
        const char* sHighlighted;
    } aCases[] = {
        {{3, 4, 5}, "A1 A2 A6 A7 A8 A9 A10 | A5 A4 A3", "3"},
        {{8, 9, 10}, "A1 A2 A3 A4 A5 A6 A7 | A10 A9 A8", "7"},
        {{9, 2, 5}, "A1 A3 A4 A6 A7 A8 A10 | A9 A5 A2", "7"}, // 9 + 1 - 3: taken as one block
        {{1}, "A2 A3 A4 A5 A6 A7 A8 A9 A10 | A1", "1"},
        {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, " | A10 A9 A8 A7 A6 A5 A4 A3 A2 A1", ""},
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sLists);
        TenRows oScene;
        int nChanged = 0;
        bool bLocked = false;
        const auto oSubscription = oScene.oList.SelectionChanged.Subscribe([&] {
            ++nChanged;
            bLocked = oScene.Available().IsLocked() && oScene.Selected().IsLocked();
        });
        oScene.Highlight(oScene.Available(), oCase.alRows);
        oScene.oList.cmdAddSingle.Press();
        EXPECT_EQ(oScene.Lists(), oCase.sLists);
        EXPECT_EQ(ListScene::Highlighted(oScene.Available()), oCase.sHighlighted);
        EXPECT_EQ(nChanged, 1);
        EXPECT_TRUE(bLocked);
        EXPECT_FALSE(oScene.Available().IsLocked() || oScene.Selected().IsLocked());
        EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(" + std::to_string(oCase.alRows.size()) + ")");
    }
}

TEST(GleanerCtlMoving, TheRowInFocusFollowsWhenTheBottomRowGoes) {
    TenRows oScene;
    oScene.Available().ClickLeft(10, 1);
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(GleanerCtlProbe::RowInFocus(oScene.oList, true), 9);
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "9");
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 1), "A10 A9");
}

TEST(GleanerCtlMoving, AddWithNothingHighlightedTakesTheFirstRow) {
    TenRows oScene;
    oScene.oList.cmdAddSingle.Enabled(true); // as the page could
    oScene.Journal().Clear();
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 1), "A1");
    EXPECT_EQ(GleanerCtlProbe::RowInFocus(oScene.oList, true), 0);
    const std::vector<std::string> asExpected = {"GridHelper.HighlightRow(\"grdAvailable\", 0, empty)",
                                                 "GridHelper.HighlightRow(\"grdAvailable\", 1, empty)"};
    EXPECT_EQ(oScene.Journal().EntriesOf("GridHelper.HighlightRow"), asExpected);
}

TEST(GleanerCtlMoving, AddAllAndRemoveAllKeepTheOrderAndTheCollection) {
    ListScene oScene(TenAndTwo, "Raw Data");
    int nChanged = 0;
    const auto oSubscription = oScene.oList.SelectionChanged.Subscribe([&] { ++nChanged; });
    oScene.ChooseProject(2);
    oScene.oList.cmdAddAll.Press();
    oScene.ChooseProject(1);
    oScene.oList.cmdAddAll.Press();
    EXPECT_EQ(oScene.Lists(), " | B1 B2 A1 A2 A3 A4 A5 A6 A7 A8 A9 A10");
    EXPECT_EQ(oScene.Keys(), "201 202 101 102 103 104 105 106 107 108 109 110");
    EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(12)");
    EXPECT_EQ(oScene.Buttons(), "removeAll");
    oScene.oList.cmdRemoveAll.Press();
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 A4 A5 A6 A7 A8 A9 A10 | "); // those of Beta drop away
    EXPECT_EQ(oScene.Keys() + oScene.oList.lblSelectedCount.Caption(), "");
    EXPECT_EQ(nChanged, 3);
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
}

TEST(GleanerCtlMoving, AddAllOfAnEmptyListStillTellsTheHost) {
    ListScene oScene("Alpha:", "Raw Data");
    int nChanged = 0;
    const auto oSubscription = oScene.oList.SelectionChanged.Subscribe([&] { ++nChanged; });
    oScene.oList.cmdAddAll.Press(); // disabled
    EXPECT_EQ(nChanged, 0);
    oScene.oList.cmdAddAll.Enabled(true);
    oScene.oList.cmdAddAll.Press();
    EXPECT_EQ(nChanged, 1);
    EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(0)");
}

TEST(GleanerCtlMoving, ARemovedRowReturnsOnlyWhereItBelongs) {
    const struct {
        std::int32_t lProject;
        bool bFilter;
        const char* sAvailable;
    } aCases[] = {
        {0, false, "A2 B1 A1"}, // all projects: every row is a candidate
        {1, false, "A2 A1"},    // of another project: it drops away
        {2, false, "B1"},
        {0, true, "A2 B1"}, // outside the dates: it stands in no list
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sAvailable);
        ListScene oScene("Alpha: A1@2026-03-01 A2@2026-04-01\nBeta: B1@2026-04-01", "Raw Data");
        oScene.Available().ClickLeft(1, 1);
        oScene.oList.cmdAddSingle.Press();
        oScene.ChooseProject(oCase.lProject);
        if (oCase.bFilter) {
            oScene.oList.chkFragFilter.Press();
            oScene.PickDates({2026, 4, 1}, {2026, 4, 2});
        }
        oScene.Selected().ClickLeft(1, 1);
        oScene.oList.cmdRemoveSingle.Press();
        EXPECT_EQ(oScene.Lists(), std::string(oCase.sAvailable) + " | ");
        EXPECT_EQ(oScene.Keys(), "");
    }
}

TEST(GleanerCtlMoving, SingleMovesLockInOneOrderEitherWay) {
    TenRows oScene;
    oScene.Available().ClickLeft(1, 1);
    const std::vector<std::string> asExpected = {
        "grdAvailable.LockUpdate(True)", "grdSelected.LockUpdate(True)",  "grdAvailable.LockUpdate(False)",
        "grdAvailable.Redraw(2)",        "grdSelected.LockUpdate(False)", "grdSelected.Redraw(2)"};
    const auto Painting = [&] {
        std::vector<std::string> asPainting;
        for (const auto& sEntry : oScene.Journal().Entries()) {
            if (sEntry.find("LockUpdate") != std::string::npos ||
                sEntry.find("Redraw") != std::string::npos) {
                asPainting.push_back(sEntry);
            }
        }
        return asPainting;
    };
    oScene.Journal().Clear();
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(Painting(), asExpected);
    oScene.Selected().ClickLeft(1, 1);
    oScene.Journal().Clear();
    oScene.oList.cmdRemoveSingle.Press();
    EXPECT_EQ(Painting(), asExpected);
}

TEST(GleanerCtlMoving, AMoveLeavesNoRowInFocusInItsTarget) {
    TenRows oScene;
    oScene.Highlight(oScene.Available(), {1, 2});
    oScene.oList.cmdAddSingle.Press();
    oScene.Available().ClickLeft(1, 1);
    GestureResult oResult;
    oScene.Selected().Events().OnStartSelection.Raise(1, 1, oResult); // a drag that begins without the focus
    EXPECT_EQ(oScene.Buttons(), "add addAll remove removeAll");
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(oScene.Buttons(), "add addAll removeAll");
}

TEST(GleanerCtlMoving, ADuplicateKeyFailsASingleMoveWithTheRowStillThere) {
    TenRows oScene;
    oScene.colSelected->Add(oScene.oLibraries->Store().Samples().Find(101), "101"); // behind the list's back
    oScene.Available().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(oScene.Utility().Chain(), "MoveSingleRow -> cmdAddSingle_Click!");
    EXPECT_TRUE(oScene.Utility().Reports().back().oFailure.Is(FailureNumber::DuplicateKey));
    EXPECT_EQ(oScene.Available().Text(1, 4), "101");
    EXPECT_EQ(oScene.Keys(), "101");
    EXPECT_TRUE(oScene.Available().IsLocked() && oScene.Selected().IsLocked());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Wait);
    oScene.oList.RefreshView();
    EXPECT_EQ(oScene.Lists(), "A2 A3 A4 A5 A6 A7 A8 A9 A10 | A1");
}

// A store that finds a record under a second text as well, as one does that is loose about leading zeros.
class LooseStore : public Models::ModelLibraries {
  public:
    class Records : public IDataCollection {
      public:
        explicit Records(Ref<IDataCollection> colRecords) : m_colRecords(std::move(colRecords)) {}
        void Add(const Ref<IObject>& oRecord) override { m_colRecords->Add(oRecord); }
        Ref<IObject> Item(const Value& vKey) override {
            return m_colRecords->Item(vKey.IsText() && vKey.ToText() == "01001" ? Value("1001") : vKey);
        }
        std::int32_t Count() override { return m_colRecords->Count(); }

      private:
        Ref<IDataCollection> m_colRecords;
    };
    class Factory : public IDataGlobals, public IDataFactory, public std::enable_shared_from_this<Factory> {
      public:
        explicit Factory(Ref<IDataFactory> oFactory) : m_oFactory(std::move(oFactory)) {}
        Ref<IDataFactory> DataFactory() override { return shared_from_this(); }
        Ref<IObject> CreateRecord(std::string_view sType) override { return m_oFactory->CreateRecord(sType); }
        Ref<IObject> GetRecord(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue,
                               std::int32_t lOption, bool bFlag) override {
            return m_oFactory->GetRecord(sType, sKeyName, sKeyValue, lOption, bFlag);
        }
        Ref<IDataCollection> GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                           std::string_view sKeyValue, std::string_view sOrder,
                                           std::int32_t lOption, bool bFlag) override {
            return std::make_shared<Records>(
                m_oFactory->GetCollection(sQuery, sKeyName, sKeyValue, sOrder, lOption, bFlag));
        }

      private:
        Ref<IDataFactory> m_oFactory;
    };
    Ref<IDataGlobals> CreateDataGlobals() override { return std::make_shared<Factory>(CreateDataFactory()); }
};

TEST(GleanerCtlMoving, AResultThatIsSelectedUnderItsOwnIDIsToldAndLeftOut) {
    ListScene oScene("Alpha: A1 A2\nAlpha results: R1 of A1 R2 of A2", "Result Data",
                     std::make_shared<LooseStore>());
    oScene.Available().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Press();
    oScene.Available().SetCellText(1, 5, "01001", GridConst::WriteText);
    oScene.oList.cmdAddAll.Press();
    const Models::ShownMessage oExpected{
        "You have an item with a duplicate RECORD ID.\r\n\r\n\tRecord ID: 1001\r\n\tName: R1",
        MessageStyle::Information, "Duplicate Record ID Found"};
    ASSERT_EQ(oScene.Platform().Messages().size(), 1U);
    EXPECT_EQ(oScene.Platform().Messages()[0], oExpected);
    EXPECT_EQ(oScene.Keys(), "1001");
    EXPECT_EQ(oScene.Selected().Rows(), 2); // the row stays, one more than there are items
    EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(1)");
}

} // namespace
} // namespace GleanerSvc
