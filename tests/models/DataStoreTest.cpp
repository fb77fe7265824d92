#include "models/DataFactoryModel.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "models/DataCollectionModel.h"
#include "models/DateText.h"
#include "tests/Scenarios.h"

namespace GleanerSvc::Models {
namespace {

struct Refused {
    std::function<void()> fnAct;
    std::string sTrouble; // number and description
};

class DataStoreTest : public testing::Test {
  protected:
    Ref<IDataCollection> Ask(std::string_view sQuery, std::string_view sKeyName = "",
                             std::string_view sKeyValue = "") {
        return m_oFactory->GetCollection(sQuery, sKeyName, sKeyValue, "", 0, true);
    }
    std::string AskText(std::string_view sQuery, std::string_view sKeyName = "",
                        std::string_view sKeyValue = "") {
        return dynamic_cast<DataCollectionModel&>(*Ask(sQuery, sKeyName, sKeyValue)).ToString();
    }
    Ref<IObject> Get(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue) {
        return m_oFactory->GetRecord(sType, sKeyName, sKeyValue, 0, true);
    }
    // Number and description of the failure that the action ends in; "none" without one.
    template<class F>
    static std::string TroubleOf(F&& fnAct) {
        try {
            fnAct();
        } catch (const Failure& oFailure) {
            return std::to_string(oFailure.Number()) + " " + oFailure.Description();
        }
        return "none";
    }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<DataStore> m_oStore = std::make_shared<DataStore>(m_oJournal);
    Ref<DataFactoryModel> m_oFactory = std::make_shared<DataFactoryModel>(m_oStore);
};

TEST_F(DataStoreTest, AnswersTheSixQueriesInStoredOrderWithItsOwnRecords) {
    Tests::PlatesWithSamplesAndResults(*m_oStore);
    EXPECT_EQ(m_oStore->ToString(), "projects=2 plates=2 samples=5 results=3 studies=0 parameters=0");
    EXPECT_EQ(AskText("Projects"), "Projects: 1 2");
    EXPECT_EQ(AskText("Samples"), "Samples: 101 102 103 104 201");
    EXPECT_EQ(AskText("Results"), "Results: 1001 1002 1003");
    EXPECT_EQ(AskText("SamplesByProjectID", "ProjectID", "2"), "Samples: 201");
    EXPECT_EQ(AskText("ResultsByProjectID", "ProjectID", "1"), "Results: 1001 1002 1003");
    EXPECT_EQ(AskText("PlatesByProjectID", "ProjectID", "1"), "Plates: 11 12");
    for (const auto* sQuery : {"SamplesByProjectID", "ResultsByProjectID", "PlatesByProjectID"}) {
        EXPECT_EQ(Ask(sQuery, "ProjectID", "77")->Count(), 0);
    }
    EXPECT_NE(Ask("Samples"), Ask("Samples"));
    EXPECT_EQ(Ask("Samples")->Item("201"), Ask("SamplesByProjectID", "ProjectID", "2")->Item(1));
    EXPECT_EQ(Get("Project", "ProjectID", "2"), m_oStore->Projects().At(2));
    EXPECT_EQ(Get("Result", "ResultID", "1002"), m_oStore->Results().At(1002));
    EXPECT_EQ(Cast<GridTypeRecord>(Get("GridType", "GridTypeID", "17"))->Columns().back().sHeading,
              "Completed");
}

TEST_F(DataStoreTest, RefusesUnknownNamesAndKeysByName) {
    Tests::TwoProjectsWithThreeSamplesEach(*m_oStore);
    const auto colSamples = Ask("Samples");
    const std::vector<Refused> aoCases = {
        {[&] { m_oFactory->CreateRecord("study"); }, R"(5 No record of the type "study" can be made.)"},
        {[&] { Get("Sample", "SampleID", "1"); }, R"(5 There are no records of the type "Sample".)"},
        {[&] { Get("Project", "ID", "1"); }, R"(5 "Project" has no key "ID".)"},
        {[&] { Get("Project", "ProjectID", "3"); }, "5 Project 3 is not in the data store."},
        {[&] { Get("Result", "ResultID", "1 "); }, R"(5 "1 " is no ID to look for "Result" by.)"},
        {[&] { Get("GridType", "GridTypeID", "6"); }, "5 GridType 6 is not in the data store."},
        {[&] { Ask("samples"); }, R"(5 There is no query "samples".)"},
        {[&] { Ask("Samples", "ProjectID", "1"); }, R"(5 "Samples" has no key "ProjectID".)"},
        {[&] { Ask("SamplesByProjectID", "", "1"); }, R"(5 "SamplesByProjectID" has no key "".)"},
        {[&] { colSamples->Item("104"); }, R"(5 Samples has no record under the key "104".)"},
        {[&] { colSamples->Item("0101"); }, R"(5 Samples has no record under the key "0101".)"},
        {[&] { colSamples->Item(0); }, "9 Samples has no record at place 0."},
        {[&] { colSamples->Item(7); }, "9 Samples has no record at place 7."},
        {[&] { colSamples->Add(m_oFactory); }, "13 Samples takes records of the data store only."},
    };
    for (const auto& oCase : aoCases) EXPECT_EQ(TroubleOf(oCase.fnAct), oCase.sTrouble);
}

TEST_F(DataStoreTest, GivesTheLatestResultOfAWell) {
    m_oStore->Fill("Alpha: A1#P.C5\n"
                   "Alpha results: R1@2026-03-01 of A1 R2@2026-03-02 of A1 R3@2026-02-01 of A1");
    IPlate& oPlate = *m_oStore->Plates().At(11);
    EXPECT_EQ(oPlate.ResultAt(4, 2), m_oStore->Results().At(1002));
    const auto dtLatest = *ReadDateText("2026-03-02");
    m_oStore->AddResult({.lResultID = 900, .lSampleID = 101, .dtModified = dtLatest});
    EXPECT_EQ(oPlate.ResultAt(4, 2)->ResultID(), 1002);
    m_oStore->AddResult({.lResultID = 1900, .lSampleID = 101, .dtModified = dtLatest});
    EXPECT_EQ(oPlate.ResultAt(4, 2)->ResultID(), 1900);
    EXPECT_EQ(oPlate.ResultAt(2, 4), nullptr);
}

TEST_F(DataStoreTest, TellsTheStatesOfWells) {
    Tests::PlatesWithSamplesAndResults(*m_oStore);
    PlateRecord& oPlate = *m_oStore->Plates().At(11);
    const auto States = [&](std::int32_t iCol) {
        return std::to_string(oPlate.SampleState(iCol, 0)) + std::to_string(oPlate.ResultState(iCol, 0));
    };
    EXPECT_EQ(States(0) + " " + States(1) + " " + States(2) + " " + States(3), "21 22 10 00");
    oPlate.OverrideSample({0, 0}, 7);
    oPlate.OverrideResult({2, 0}, 1);
    EXPECT_EQ(States(0) + " " + States(2), "71 11");
    EXPECT_EQ(oPlate.SampleAt(0, 0), nullptr);
    EXPECT_EQ(oPlate.ResultAt(2, 0), nullptr);
    EXPECT_EQ(TroubleOf([&] { oPlate.SampleState(12, 0); }), "9 A plate has no well at column 12, row 0.");
    EXPECT_EQ(TroubleOf([&] { oPlate.ResultAt(0, -1); }), "9 A plate has no well at column 0, row -1.");
    EXPECT_EQ(m_oStore->Plates().At(12)->SampleAt(11, 7)->SampleID(), 104);
}

TEST_F(DataStoreTest, MarksRecordsByNameAndKeepsTheMarksOfSeparateCopiesApart) {
    Tests::PlatesWithSamplesAndResults(*m_oStore);
    IPlate& oPlate = *m_oStore->Plates().At(11);
    for (const bool bSeparate : {false, true}) {
        m_oStore->SeparateCopies(bSeparate);
        oPlate.ResultAt(0, 0)->IsSelected(false);
        m_oJournal->Clear();
        oPlate.Results()->Item("1001")->PutMember("IsSelected", true);
        EXPECT_EQ(m_oJournal->Entries().back(), "Result.IsSelected(True)");
        EXPECT_TRUE(oPlate.Results()->Item("1001")->GetMember("IsSelected").ToBool());
        EXPECT_EQ(oPlate.ResultAt(0, 0)->IsSelected(), !bSeparate);
    }
    EXPECT_EQ(TroubleOf([&] { oPlate.SampleAt(0, 0)->PutMember("isselected", true); }).substr(0, 3), "438");
}

TEST_F(DataStoreTest, AStudyGivesBackItsResultsByName) {
    Tests::TwoProjectsWithThreeResultsEach(*m_oStore);
    const auto oStudy = m_oStore->AddStudy(1, {1002});
    const auto oNew = Cast<IStudyResult>(m_oFactory->CreateRecord("StudyResult"));
    oNew->Study(oStudy);
    oNew->ResultID(2003);
    oNew->ResultFlag(false);
    oStudy->StudyResults()->Item("1002");
    oStudy->StudyResults()->Add(oNew);
    EXPECT_EQ(oStudy->ToString(), "1 StudyResults: 1002 2003");
    EXPECT_EQ(oStudy->OwnResults().Records()[1]->ToString(), "result=2003 flag=False study=yes");
    EXPECT_EQ(oStudy->StudyResults()->Item("2003")->GetMember("Result").To<IResult>(),
              m_oStore->Results().At(2003));
    oNew->ResultID(9);
    EXPECT_EQ(TroubleOf([&] { oNew->GetMember("Result"); }), "5 Result 9 is not in the data store.");
}

TEST_F(DataStoreTest, FillsFromACompactDescription) {
    m_oStore->Fill("\n  Alpha One: A1 A2#P.H12@2026-03-01T23:59:59/2026-01-15\n\n"
                   "Beta: B1#P\r\n"
                   "Alpha One results: R1@2026-03-01 of A2\n");
    m_oStore->Fill("Alpha One: A3\nGamma:");
    EXPECT_EQ(m_oStore->Projects().At(1)->ToString(), "1 Alpha One plates=1 samples=3 results=1");
    EXPECT_EQ(m_oStore->Projects().At(3)->ToString(), "3 Gamma plates=0 samples=0 results=0");
    const std::vector<std::pair<std::int32_t, std::string>> aSamples = {
        {101, "101 A1 project=1; 2026-01-01; 2025-01-01"},
        {102, "102 A2 project=1 plate=11 well=H12; 2026-03-01 23:59:59; 2026-01-15"},
        {201, "201 B1 project=2 plate=12; 2026-01-03; 2025-01-03"},
        {103, "103 A3 project=1; 2026-01-05; 2025-01-05"},
    };
    for (const auto& [lSampleID, sText] : aSamples) {
        const SampleRecord& oSample = *m_oStore->Samples().At(lSampleID);
        EXPECT_EQ(oSample.ToString() + "; " + WriteDateText(oSample.Made().dtModified) + "; " +
                      WriteDateText(oSample.Made().dtCollected),
                  sText);
    }
    EXPECT_EQ(m_oStore->Results().At(1001)->ToString(), "1001 R1 project=1 plate=11 well=H12");
}

TEST_F(DataStoreTest, RefusesABadDescriptionWithLineAndWord) {
    const std::vector<std::pair<std::string, std::string>> asCases = {
        {"Alpha A1", R"(Line 1, "Alpha A1": no colon follows the project's name.)"},
        {"\n: A1", R"(Line 2, ": A1": the project has no name.)"},
        {"Alpha: A1\nBeta: B1 B2@2026-02-30", R"(Line 2, "B2@2026-02-30": "2026-02-30" is no date.)"},
        {"Alpha: A1@2026-01-01/x", R"(Line 1, "A1@2026-01-01/x": "x" is no date.)"},
        {"Alpha: A1@2026-01-01@2026-01-02", R"(Line 1, "A1@2026-01-01@2026-01-02": it has dates twice.)"},
        {"Alpha: A1#P.I1", R"(Line 1, "A1#P.I1": "I1" is no well.)"},
        {"Alpha: A1#P.A13", R"(Line 1, "A1#P.A13": "A13" is no well.)"},
        {"Alpha: A1#P.", R"(Line 1, "A1#P.": "" is no well.)"},
        {"Alpha: #P", R"(Line 1, "#P": the record has no name.)"},
        {"Alpha: A1 of A2", R"(Line 1, "of": it stands between a result and its sample only.)"},
        {"Alpha results: R1 of", R"(Line 1, "of": it stands between a result and its sample only.)"},
    };
    for (const auto& oCase : asCases) {
        EXPECT_EQ(TroubleOf([&] { m_oStore->Fill(oCase.first); }), "5 " + oCase.second);
    }
    EXPECT_EQ(m_oStore->ToString(), "projects=0 plates=0 samples=0 results=0 studies=0 parameters=0");
}

} // namespace
} // namespace GleanerSvc::Models
