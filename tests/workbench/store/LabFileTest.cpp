// The file of a lab: what is refused at its opening, and what it holds after a full disk.
#include <unistd.h>

#include "tests/workbench/store/LabStories.h"
#include "workbench/store/Schema.h"

namespace GleanerSvc::Workbench {

namespace {

using testing::HasSubstr;

class LabFileTest : public LabStory {
  public:
    std::string RefusalToOpen(LabMode eMode = LabMode::CreateIfMissing) const {
        return Refusal([&] { OpenLab(eMode); });
    }
    void WriteFile(std::string_view sName, std::string_view sText) const {
        std::ofstream(File(sName)) << sText;
    }
};

TEST_F(LabFileTest, WhatIsNoLabIsRefusedAndStaysAsItWas) {
    EXPECT_EQ(RefusalToOpen(LabMode::Existing), "there is no lab " + File().string());
    EXPECT_FALSE(std::filesystem::exists(File()));

    WriteFile("trial.lab", "");
    EXPECT_THAT(RefusalToOpen(LabMode::Existing), HasSubstr("is no lab: it is empty"));
    WriteFile("trial.lab", std::string(5000, 'x'));
    EXPECT_THAT(RefusalToOpen(), HasSubstr(File().string() + " is no lab: file is not a database"));
    EXPECT_EQ(std::filesystem::file_size(File()), 5000U);

    std::filesystem::remove(File());
    Database(File()).Run("CREATE TABLE other (a INTEGER)");
    EXPECT_THAT(RefusalToOpen(), HasSubstr("is no lab: it has no table \"lab_schema\""));

    std::filesystem::remove(File());
    std::filesystem::create_directory(File());
    EXPECT_THAT(RefusalToOpen(), HasSubstr("is no lab: it is a folder"));
}

TEST_F(LabFileTest, AFolderThatCannotBeWrittenIsTold) {
    WriteFile("plain", "a file");
    const auto oFile = File("plain") / "trial.lab";
    EXPECT_THAT(Refusal([&] { Lab::Open(oFile, LabMode::CreateIfMissing); }),
                HasSubstr("the lab " + oFile.string() + " cannot be written"));
    EXPECT_THAT(Refusal([&] { Lab::Open(File("none") / "trial.lab", LabMode::CreateIfMissing); }),
                HasSubstr("cannot be written"));
}

TEST_F(LabFileTest, ASecondProgramIsRefusedUntilTheFirstHasEnded) {
    auto oLab = OpenLab();
    EXPECT_THAT(RefusalToOpen(), HasSubstr("another program uses the lab " + File().string()));
    std::filesystem::create_symlink(File(), File("other name"));
    EXPECT_THAT(Refusal([&] { Lab::Open(File("other name"), LabMode::Existing); }),
                HasSubstr("another program uses the lab"));
    oLab->AddProject("still works");
    const auto oReader = OpenLab(LabMode::Reading); // reads what is there by then, and cannot write
    EXPECT_TRUE(oReader->FindProject("still works"));
    EXPECT_THAT(Refusal([&] { oReader->AddProject("never"); }), HasSubstr("cannot be written"));
    oLab.reset();
    EXPECT_EQ(RefusalToOpen(), "");
}

// A lock of no program at all is told apart from one of another.
TEST_F(LabFileTest, ALockThatSaysNothingIsNamed) {
    WriteFile("trial.lab.lock", "");
    EXPECT_THAT(RefusalToOpen(), HasSubstr("trial.lab.lock does not say which; remove that file"));
}

// Root may write anywhere, so it takes the rights of a user who owns nothing for a while.
TEST_F(LabFileTest, ALabIsReadInAFolderThatLetsNobodyWrite) {
    OpenLab()->AddProject("there");
    const auto oFolder = File().parent_path();
    std::filesystem::permissions(oFolder, std::filesystem::perms{0555});
    const bool bRoot = geteuid() == 0;
    if (bRoot) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    EXPECT_EQ(Refusal([&] { EXPECT_TRUE(OpenLab(LabMode::Reading)->FindProject("there")); }), "");
    EXPECT_THAT(RefusalToOpen(LabMode::Existing), HasSubstr("no file can be made in its folder"));
    if (bRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    std::filesystem::permissions(oFolder, std::filesystem::perms{0755});
}

TEST_F(LabFileTest, AnOlderLabIsBroughtUpToDateAndANewerOneRefused) {
    {
        Database oDatabase(File());
        oDatabase.PrepareToWrite();
        BringTo(oDatabase, 1);
        oDatabase.Write("INSERT INTO projects (name, folded_name) VALUES (?, ?)", std::string_view("Old"),
                        std::string_view("old"));
        EXPECT_EQ(VersionOf(oDatabase), 1);
    }
    EXPECT_TRUE(OpenLab(LabMode::Existing)->FindProject("Old"));
    {
        Database oDatabase(File());
        EXPECT_EQ(VersionOf(oDatabase), SchemaVersion);
        oDatabase.Run("DROP INDEX calls_by_allele");
        oDatabase.Write("UPDATE lab_schema SET version = ?", 0);
        EXPECT_THAT(Refusal([&] { VersionOf(oDatabase); }), HasSubstr("is no lab: its version is 0"));
        oDatabase.Write("UPDATE lab_schema SET version = ?", 99);
    }
    EXPECT_EQ(RefusalToOpen(),
              "the lab " + File().string() + " is of version 99; this program knows versions up to 2");
}

TEST_F(LabFileTest, AStepThatFailsLeavesTheOlderVersion) {
    {
        Database oDatabase(File());
        BringTo(oDatabase, 1);
        oDatabase.Run("DROP TABLE calls"); // the second step wants it
    }
    EXPECT_THAT(RefusalToOpen(), HasSubstr("calls"));
    Database oDatabase(File());
    EXPECT_EQ(VersionOf(oDatabase), 1);
}

TEST_F(LabFileTest, ATransactionThatTheDatabaseTookBackTakesNoMoreWrites) {
    Database oDatabase(File());
    oDatabase.Run("CREATE TABLE t (a INTEGER)");
    oDatabase.Begin();
    oDatabase.Begin();
    oDatabase.Write("INSERT INTO t (a) VALUES (?)", 1);
    oDatabase.Run("ROLLBACK"); // as a database does on a full disk
    oDatabase.Rollback();
    EXPECT_THAT(Refusal([&] { oDatabase.Write("INSERT INTO t (a) VALUES (?)", 2); }),
                HasSubstr("the database has taken back the transaction"));
    EXPECT_NE(Refusal([&] { oDatabase.Commit(); }), "");
    oDatabase.Rollback();
    oDatabase.Write("INSERT INTO t (a) VALUES (?)", 3);
    auto oRows = oDatabase.Query("SELECT a FROM t");
    ASSERT_TRUE(oRows.Next());
    EXPECT_EQ(oRows.Int(0), 3);
    EXPECT_FALSE(oRows.Next());
}

TEST_F(LabFileTest, AFullDiskLosesNothingDoneBefore) {
    const auto oLab = OpenLab();
    const auto lSample = AddSample(*oLab, SampleIn(oLab->AddProject("A"), 0, "", "S1"));
    oLab->LimitSize(oLab->SizeMB() + 0.05);
    std::int32_t lStored = 0;
    const auto Fill = [&] {
        while (lStored < 10000) lStored = oLab->AddResult(ResultOf(lSample));
    };
    EXPECT_THAT(Refusal(Fill), HasSubstr("there is no room for the lab " + File().string() + " to grow"));
    ASSERT_GT(lStored, 10);
    const auto lBefore = lStored;
    const auto FillAtOnce = [&] {
        Lab::Transaction oAll(*oLab);
        oLab->AddProject("of the transaction");
        Fill();
    };
    EXPECT_THAT(Refusal(FillAtOnce), HasSubstr("there is no room"));

    EXPECT_EQ(oLab->CheckIntegrity(), "ok");
    EXPECT_EQ(oLab->ResultsOfSample(lSample).size(), static_cast<std::size_t>(lBefore));
    EXPECT_EQ(oLab->CalledOf(lBefore).aoCalls.size(), 2U);
    EXPECT_FALSE(oLab->FindProject("of the transaction"));
    oLab->LimitSize(0);
    EXPECT_EQ(oLab->AddResult(ResultOf(lSample)), lBefore + 1);
}

TEST_F(LabFileTest, SizesFollowWhatIsStored) {
    const auto oLab = OpenLab();
    const auto lSample = AddSample(*oLab, SampleIn(oLab->AddProject("A"), 0, "", "S1"));
    const auto dUsual = oLab->ResultMB();
    auto oLarge = ResultOf(lSample);
    oLarge.oSized.aoPeaks.resize(5000);
    const auto dBefore = oLab->SizeMB();
    oLab->AddResult(oLarge);
    EXPECT_GT(oLab->SizeMB(), dBefore + 0.1);
    EXPECT_GT(oLab->ResultMB(), dUsual);
}

} // namespace

} // namespace GleanerSvc::Workbench
