#include "models/DataFactoryModel.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/Scenarios.h"

namespace GleanerSvc::Models {
namespace {

class DataStoreTest : public testing::Test {
  protected:
    Ref<IDataCollection> Ask(std::string_view sQuery, std::string_view sKeyName = "",
                             std::string_view sKeyValue = "") {
        return m_oFactory->GetCollection(sQuery, sKeyName, sKeyValue, "", 0, true);
    }
    Ref<IObject> Get(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue) {
        return m_oFactory->GetRecord(sType, sKeyName, sKeyValue, 0, true);
    }

    Ref<DataStore> m_oStore = std::make_shared<DataStore>(std::make_shared<Journal>());
    Ref<DataFactoryModel> m_oFactory = std::make_shared<DataFactoryModel>(m_oStore);
};

TEST_F(DataStoreTest, RefusesUnknownNamesKeysAndDescriptionsByName) {
    Tests::PlatesWithSamplesAndResults(*m_oStore);
    const std::string sBefore = m_oStore->ToString();
    const auto colSamples = Ask("Samples");
    PlateRecord& oPlate = *m_oStore->Plates().At(11);
    const auto Fill = [this](const char* sText) { return [this, sText] { m_oStore->Fill(sText); }; };
    const std::pair<std::function<void()>, const char*> aoCases[] = {
        {[&] { m_oFactory->CreateRecord("study"); }, R"(5 No record of the type "study" can be made.)"},
        {[&] { Get("Sample", "SampleID", "1"); }, R"(5 There are no records of the type "Sample".)"},
        {[&] { Get("Project", "ID", "1"); }, R"(5 "Project" has no key "ID".)"},
        {[&] { Get("Project", "ProjectID", "3"); }, "5 Project 3 is not in the data store."},
        {[&] { Ask("samples"); }, R"(5 There is no query "samples".)"},
        {[&] { Ask("SamplesByProjectID", "", "1"); }, R"(5 "SamplesByProjectID" has no key "".)"},
        {[&] { colSamples->Item("0101"); }, R"(5 Samples has no record under the key "0101".)"},
        {[&] { colSamples->Item(6); }, "9 Samples has no record at place 6."},
        {[&] { colSamples->Add(m_oFactory); }, "13 Samples takes records of the data store only."},
        {[&] { oPlate.SampleState(12, 0); }, "9 A plate has no well at column 12, row 0."},
        {Fill("New A1"), R"(5 Line 1, "New A1": no colon follows the project's name.)"},
        {Fill("New: A1\nB: B1 B2@2026-02-30"), R"(5 Line 2, "B2@2026-02-30": "2026-02-30" is no date.)"},
        {Fill("New: A1#P.I1"), R"(5 Line 1, "A1#P.I1": "I1" is no well.)"},
        {Fill("New: #P"), R"(5 Line 1, "#P": the record has no name.)"},
        {Fill("New: A1 of A2"), R"(5 Line 1, "of": it stands between a result and its sample only.)"},
    };
    for (const auto& [fnAct, sTrouble] : aoCases) {
        const Failure oFailure = FailureOf(fnAct);
        EXPECT_EQ(DecimalText(oFailure.Number()) + " " + oFailure.Description(), sTrouble);
    }
    EXPECT_EQ(m_oStore->ToString(), sBefore);
}

TEST_F(DataStoreTest, TheLatestResultOfAWellIsTheGreaterIdOfOneMoment) {
    Tests::PlatesWithSamplesAndResults(*m_oStore);
    for (const std::int32_t lResultID : {900, 1900}) {
        m_oStore->AddResult({.lResultID = lResultID, .lSampleID = 102, .dtModified = Date::Of({2026, 3, 1})});
        EXPECT_EQ(m_oStore->Plates().At(11)->ResultAt(1, 0)->ResultID(), lResultID == 900 ? 1003 : 1900);
    }
}

} // namespace
} // namespace GleanerSvc::Models
