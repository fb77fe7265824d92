#include "models/DataFactoryModel.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

// On plate P1 of the first project A1 has one result, A2 has two of which R3 is the latest, A3 none.
class DataStoreTest : public testing::Test {
  protected:
    DataStoreTest() {
        m_oStore->Fill("Default: A1#P1.A1 A2#P1.A2 A3#P1.A3 B1#P2.H12\n"
                       "Default results: R1 of A1 R2@2026-02-01 of A2 R3@2026-03-01 of A2\n"
                       "Other: C1");
    }
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
    const std::string sBefore = m_oStore->ToString();
    const auto colSamples = Ask("Samples");
    PlateRecord& oPlate = *m_oStore->Plates().At(11);
    const auto Fill = [this](const char* sText) { return [this, sText] { m_oStore->Fill(sText); }; };
    ExpectTroubles({
        {[&] { m_oFactory->CreateRecord("study"); },
         R"(5 DataFactory: No record of the type "study" can be made.)"},
        {[&] { Get("Sample", "SampleID", "1"); },
         R"(5 DataFactory: There are no records of the type "Sample".)"},
        {[&] { Get("Project", "ID", "1"); }, R"(5 DataFactory: "Project" has no key "ID".)"},
        {[&] { Get("Project", "ProjectID", "3"); }, "5 DataStore: Project 3 is not in the data store."},
        {[&] { Ask("samples"); }, R"(5 DataFactory: There is no query "samples".)"},
        {[&] { Ask("SamplesByProjectID", "", "1"); },
         R"(5 DataFactory: "SamplesByProjectID" has no key "".)"},
        {[&] { colSamples->Item("0101"); }, R"(5 Samples: Samples has no record under the key "0101".)"},
        {[&] { colSamples->Item(6); }, "9 Samples: Samples has no record at place 6."},
        {[&] { colSamples->Add(m_oFactory); }, "13 Samples: Samples takes records of the data store only."},
        {[&] { oPlate.SampleState(12, 0); }, "9 Plate: A plate has no well at column 12, row 0."},
        {Fill("New A1"), R"(5 DataStore: Line 1, "New A1": no colon follows the project's name.)"},
        {Fill("New: A1\nB: B1 B2@2026-02-30"),
         R"(5 DataStore: Line 2, "B2@2026-02-30": "2026-02-30" is no date.)"},
        {Fill("New: A1#P.I1"), R"(5 DataStore: Line 1, "A1#P.I1": "I1" is no well.)"},
        {Fill("New: #P"), R"(5 DataStore: Line 1, "#P": the record has no name.)"},
        {Fill("New: A1 of A2"),
         R"(5 DataStore: Line 1, "of": it stands between a result and its sample only.)"},
    });
    EXPECT_EQ(m_oStore->ToString(), sBefore);
}

TEST_F(DataStoreTest, TheLatestResultOfAWellIsTheGreaterIdOfOneMoment) {
    for (const std::int32_t lResultID : {900, 1900}) {
        m_oStore->AddResult({.lResultID = lResultID, .lSampleID = 102, .dtModified = Date::Of({2026, 3, 1})});
        EXPECT_EQ(m_oStore->Plates().At(11)->ResultAt(1, 0)->ResultID(), lResultID == 900 ? 1003 : 1900);
    }
}

} // namespace
} // namespace GleanerSvc::Models
