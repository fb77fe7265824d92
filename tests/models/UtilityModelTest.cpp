#include "models/UtilityModel.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

class UtilityModelTest : public testing::Test {
  protected:
    void Log(const char* sProcedure, bool bShowUser) {
        m_oUtility->LogError("Workstation", "GleanerCtl", sProcedure, m_oFailure, "", bShowUser);
    }

    Failure m_oFailure = Failure::Of(FailureNumber::Overflow);
    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<UtilityModel> m_oUtility = std::make_shared<UtilityModel>(m_oJournal);
};

TEST_F(UtilityModelTest, KeepsReportsInOrder) {
    EXPECT_EQ("", m_oUtility->Chain());
    Log("LoadPlates", false);
    Log("cmbProjects_Click", true);
    Log("RefreshView", false);
    EXPECT_EQ("LoadPlates -> cmbProjects_Click!; RefreshView", m_oUtility->Chain());
    EXPECT_EQ("GleanerCtl.cmbProjects_Click!: 6 GleanerSvc: Overflow", m_oUtility->Reports()[1].ToString());
    EXPECT_EQ(m_oFailure, m_oUtility->Reports()[2].oFailure);

    m_oUtility->ClearReports();
    m_oJournal->FailCall(1, m_oFailure);
    EXPECT_THROW(Log("LoadPlates", false), Failure);
    EXPECT_EQ("", m_oUtility->Chain()) << "a report that failed was not made";
}

TEST_F(UtilityModelTest, JudgesTheDatabaseByItsFigures) {
    std::int32_t lSizeMB = 0;
    m_oUtility->Database({650, 0.5, 700, 650});
    EXPECT_FALSE(m_oUtility->WillDatabaseOverflow(100)) << "just the limit";
    EXPECT_TRUE(m_oUtility->WillDatabaseOverflow(101));
    EXPECT_FALSE(m_oUtility->IsDatabaseLarge(lSizeMB)) << "just the warning size";
    m_oUtility->Database({650.1, 0.5, 700, 650});
    EXPECT_TRUE(m_oUtility->IsDatabaseLarge(lSizeMB));
    EXPECT_EQ(650, lSizeMB);
}

TEST_F(UtilityModelTest, FindsFoldersAndKeysWithoutRegardToCase) {
    KeyedCollection colStore;
    colStore.Add("SKIP", "Skip>>");
    EXPECT_TRUE(m_oUtility->IsInCollection(colStore, "sKIP>>"));
    EXPECT_FALSE(m_oUtility->IsInCollection(colStore, "<<Skip"));

    m_oUtility->Folder("Images", "/install/images");
    EXPECT_EQ("/install/images", m_oUtility->GetFolderPath("images"));
    EXPECT_EQ("5 Utility: The installation has no folder \"reports\".",
              FailureOf([&] { m_oUtility->GetFolderPath("reports"); }).ToString());
}

TEST_F(UtilityModelTest, RemembersWhatTheSecondGateWasAskedWith) {
    m_oUtility->EnableDebugBreak(true);
    EXPECT_TRUE(m_oUtility->IsDebugBreakEnabled());
    EXPECT_FALSE(m_oUtility->AppValue());
    EXPECT_FALSE(m_oUtility->CanDebugBreak(42));
    EXPECT_EQ(42, m_oUtility->AppValue());
    EXPECT_EQ("reports=0 gates=on/off database=0 MB slot=1 mode=1", m_oUtility->ToString());
}

} // namespace
} // namespace GleanerSvc::Models
