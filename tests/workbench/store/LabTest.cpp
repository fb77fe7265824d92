#include "workbench/store/Lab.h"

#include "tests/workbench/store/LabStories.h"

namespace GleanerSvc::Workbench {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using LabTest = LabStory;

TEST_F(LabTest, NamesAreUniqueWithoutRegardToCase) {
    const auto oLab = OpenLab();
    const auto lBeta = oLab->AddProject("Beta");
    const auto lAlpha = oLab->AddProject("alpha  ");
    const auto lPlate = oLab->AddPlate(lBeta, "P1");
    EXPECT_NE(oLab->AddPlate(lAlpha, "p1"), lPlate) << "another project has its own plates";
    oLab->AddStudy("\xC3\x84rger");

    EXPECT_EQ(Refusal([&] { oLab->AddProject("BETA "); }),
              "the lab " + File().string() + " has a project \"BETA \" already");
    EXPECT_THAT(Refusal([&] { oLab->AddPlate(lBeta, "p1"); }), HasSubstr("has a plate \"p1\" already"));
    EXPECT_THAT(Refusal([&] { oLab->AddStudy("\xC3\xA4RGER"); }), HasSubstr("has a study"));
    EXPECT_THAT(Refusal([&] { oLab->AddProject("  "); }), HasSubstr("cannot take a project without a name"));
    EXPECT_THROW(oLab->AddProject("[all projects] "), InputError);
    EXPECT_THAT(Refusal([&] { oLab->AddPlate(77, "P"); }), HasSubstr("has no project 77"));

    ASSERT_EQ(oLab->Projects().size(), 2U);
    EXPECT_EQ(oLab->Projects().front().sName, "alpha") << "by name, the blanks at its end cut";
    EXPECT_EQ(oLab->FindProject("ALPHA")->lProjectID, lAlpha);
    EXPECT_EQ(oLab->FindPlate(lBeta, "P1")->lPlateID, lPlate);
    EXPECT_FALSE(oLab->FindPlate(lBeta, "P2"));
    EXPECT_EQ(oLab->Plates(lBeta).size(), 1U);
}

TEST_F(LabTest, ASampleComesBackAsItWasAdded) {
    const auto oLab = OpenLab();
    const auto lProject = oLab->AddProject("Alpha");
    const auto lPlate = oLab->AddPlate(lProject, "P1");
    auto oRow = SampleIn(lProject, lPlate, "H12", "S1", 45000.75);
    oRow.sFile = "it's; DROP TABLE samples --\xE2\x82\xAC";
    const auto abTrace = Bytes(std::string("\0trace\xFF", 7));
    const auto lSample = oLab->AddSample(oRow, abTrace);

    const auto oFound = oLab->FindSample(lSample);
    ASSERT_TRUE(oFound);
    EXPECT_EQ(oFound->oWell, ReadWell("H12"));
    EXPECT_EQ(oFound->sFile, oRow.sFile);
    EXPECT_EQ(oFound->dtCollected, Date(45000.75));
    EXPECT_GT(oFound->dtModified, Date(46000)) << "the lab's own clock";
    EXPECT_EQ(oLab->TraceOf(lSample), abTrace);
    EXPECT_EQ(oLab->FindSample(lProject, abTrace)->lSampleID, lSample);
    EXPECT_FALSE(oLab->FindSample(lProject, Bytes("other")));
    EXPECT_FALSE(oLab->FindSample(oLab->AddProject("Beta"), abTrace)) << "known in its own project only";
    EXPECT_THAT(Refusal([&] { oLab->TraceOf(9); }), HasSubstr("has no sample 9"));
}

TEST_F(LabTest, ASampleOfAnotherPlaceIsRefusedAndLeavesNothing) {
    const auto oLab = OpenLab();
    const auto lAlpha = oLab->AddProject("Alpha");
    const auto lPlate = oLab->AddPlate(oLab->AddProject("Beta"), "P1");
    const struct {
        SampleRow oRow;
        std::string sWhat;
    } aoCases[] = {{SampleIn(99, 0, "", "S"), "has no project 99"},
                   {SampleIn(lAlpha, lPlate, "A1", "S"), "has no plate 1 in project 1"},
                   {SampleIn(lAlpha, 0, "A1", "S"), "\"S\": it has a well, but no plate"}};
    for (const auto& oCase : aoCases)
        EXPECT_THAT(Refusal([&] { AddSample(*oLab, oCase.oRow); }), HasSubstr(oCase.sWhat));
    oLab->ForEachSample(AllProjectsID, [](const SampleRow& oRow) { ADD_FAILURE() << oRow.sName; });
}

TEST_F(LabTest, LaddersAreThoseOfThePlateAndRunNearestFirst) {
    const auto oLab = OpenLab();
    const auto lProject = oLab->AddProject("Alpha");
    const auto lPlate = oLab->AddPlate(lProject, "P1");
    const auto Add = [&](std::string sName, std::string sPanel, double dRun, double dCollected) {
        auto oRow = SampleIn(lProject, lPlate, "A1", std::move(sName), dCollected);
        oRow.sType = "Allelic Ladder";
        oRow.sPanel = std::move(sPanel);
        oRow.dtRun = Date(dRun);
        AddSample(*oLab, oRow);
    };
    Add("near, other run", "Kit", 44990, 45000.01);
    Add("far, own run", "Kit", 44999.5, 45003);
    Add("other panel", "Other", 44999.5, 45000);
    Add("own run", "KIT", 44999.5, 44999.9);
    std::vector<std::string> asNames;
    for (const auto& oLadder : oLab->LaddersFor(SampleIn(lProject, lPlate, "B1", "S1")))
        asNames.push_back(oLadder.sName);
    EXPECT_THAT(asNames, ElementsAre("own run", "far, own run"));
    EXPECT_TRUE(oLab->LaddersFor(SampleIn(lProject, 0, "", "S1")).empty());
}

TEST_F(LabTest, AResultComesBackWithItsPeaksAndCalls) {
    const auto oLab = OpenLab();
    const auto lProject = oLab->AddProject("Alpha");
    const auto lSample = AddSample(*oLab, SampleIn(lProject, oLab->AddPlate(lProject, "P1"), "C5", "S1"));
    auto oNew = ResultOf(lSample);
    oNew.lParameterID = oLab->AddParameter({0, "STR, 2 loci", AlleleType::Str, {"vWA", "D3S1358"}});
    const auto lResult = oLab->AddResult(oNew);

    const auto oRow = oLab->FindResult(lResult);
    ASSERT_TRUE(oRow);
    EXPECT_EQ(oRow->sName + "/" + oRow->sDescription, "S1/OFF LADDER");
    EXPECT_EQ(oRow->eStatus, Status::OffLadder);
    EXPECT_EQ(oRow->oWell, ReadWell("C5"));
    EXPECT_EQ(oRow->dtCollected, Date(45000));
    EXPECT_EQ(oLab->SizedOf(lResult), oNew.oSized);
    EXPECT_EQ(oLab->CalledOf(lResult), oNew.oCalled);
    EXPECT_EQ(IDsOf(oLab->ResultsOfSample(lSample)), std::vector{lResult});
    EXPECT_THAT(oLab->FindParameter(oRow->lParameterID)->asLoci, ElementsAre("vWA", "D3S1358"));
    EXPECT_EQ(oLab->AddParameter({0, "again", AlleleType::Str, {"vWA", "D3S1358"}}), oNew.lParameterID);
    EXPECT_NE(oLab->AddParameter({0, "all", AlleleType::Str, {}}), oNew.lParameterID);

    oNew.oCalled.aoCalls[0].nPeak = 3;
    EXPECT_THAT(Refusal([&] { oLab->AddResult(oNew); }), HasSubstr("\"D3S1358\": there is no peak 3"));
    oNew.lSampleID = 8;
    EXPECT_THAT(Refusal([&] { oLab->AddResult(oNew); }), HasSubstr("has no sample 8"));
    EXPECT_EQ(oLab->ResultsOfSample(lSample).size(), 1U) << "nothing of what was refused";
    EXPECT_THAT(Refusal([&] { oLab->CalledOf(9); }), HasSubstr("has no result 9"));
}

TEST_F(LabTest, DamagedPeaksAreToldWithTheirResult) {
    std::int32_t lResult = 0;
    {
        const auto oLab = OpenLab();
        lResult = oLab->AddResult(ResultOf(AddSample(*oLab, SampleIn(oLab->AddProject("A"), 0, "", "S1"))));
    }
    {
        Database oDatabase(File());
        const auto abCut = Bytes("\1");
        oDatabase.Write("UPDATE sized_traces SET content = ?", std::span<const std::byte>(abCut));
    }
    const auto oLab = OpenLab();
    EXPECT_EQ(Refusal([&] { oLab->SizedOf(lResult); }),
              "the lab " + File().string() +
                  " holds damaged peaks of result 1: byte 1: a number reaches beyond the end at 1");
    EXPECT_EQ(oLab->CalledOf(lResult).aoCalls.size(), 2U) << "all the rest is there";
}

TEST_F(LabTest, AKitIsReplacedWhole) {
    const auto oLab = OpenLab();
    const auto Panels = [](const std::string& sPanel, const std::string& sLocus) {
        return TableText{"panels.txt", "Version\t1\nKit type:\tMICROSATELLITE\nChemistry Kit\tK\nPanel\t" +
                                           sPanel + "\n" + sLocus +
                                           "\tblue\t100\t200\t15\t4\t0\tnone\t15, 16,\n"};
    };
    const auto Bins = [](const std::string& sPanel, const std::string& sLocus) {
        return TableText{"bins.txt", "Version\t1\nChemistry Kit\tK\nBinSet Name\tB\nPanel Name\t" + sPanel +
                                         "\nMarker Name\t" + sLocus +
                                         "\n15\t120\t0.5\t0.5\n16\t124\t0.5\t0.5\n"};
    };
    oLab->SaveKit("Kit", Panels("P", "vWA"), Bins("P", "vWA"));
    oLab->SaveKit("Other", Panels("p", "FGA"), Bins("p", "FGA"));
    ASSERT_EQ(oLab->Panels().size(), 1U);
    EXPECT_EQ(oLab->FindPanel("P")->aoLoci.at(0).sName, "FGA") << "of the newer kit";
    oLab->SaveKit("KIT", Panels("P", "TH01"), Bins("P", "TH01"));
    EXPECT_EQ(oLab->FindPanel("P")->aoLoci.at(0).sName, "TH01");
    {
        Lab::Transaction oTakenBack(*oLab);
        oLab->SaveKit("Kit", Panels("Q", "TPOX"), Bins("Q", "TPOX"));
        EXPECT_TRUE(oLab->FindPanel("Q"));
    }
    EXPECT_FALSE(oLab->FindPanel("Q"));
    EXPECT_THROW(oLab->SaveKit("Kit", {"panels.txt", "no table"}, Bins("P", "vWA")), InputError);
}

TEST_F(LabTest, AStudyKeepsTheOrderOfAdding) {
    const auto oLab = OpenLab();
    const auto lSample = AddSample(*oLab, SampleIn(oLab->AddProject("A"), 0, "", "S1"));
    for (int nResult = 0; nResult < 3; ++nResult) oLab->AddResult(ResultOf(lSample));
    const auto lStudy = oLab->AddStudy("Trial");
    for (const std::int32_t lResult : {3, 1, 2}) oLab->AddStudyResult(lStudy, lResult, false);
    EXPECT_THAT(IDsOf(oLab->ResultsOfStudy(lStudy)), ElementsAre(3, 1, 2));
    EXPECT_EQ(oLab->FindStudy("TRIAL")->lResults, 3);
    EXPECT_THAT(Refusal([&] { oLab->AddStudyResult(lStudy, 1, false); }),
                HasSubstr("has result 1 in study 1 already"));
    EXPECT_THAT(Refusal([&] { oLab->AddStudyResult(lStudy, 4, false); }), HasSubstr("has no result 4"));
    EXPECT_EQ(oLab->Studies().size(), 1U);
}

TEST_F(LabTest, SettingsAndTheLogAreKept) {
    {
        const auto oLab = OpenLab();
        EXPECT_EQ(oLab->Setting("MaximumResults", 1000), 1000);
        oLab->ChangeSetting("MaximumResults", 5);
        oLab->ChangeSetting("MaximumResults", -7);
        for (const auto* sProcedure : {"First", "Second", "Third"})
            oLab->Log(
                {0, Date(), "App", "Page", sProcedure, Failure(9, "Src", "What", "Help", 3), "more", true});
    }
    const auto oLab = OpenLab(LabMode::Existing);
    EXPECT_EQ(oLab->Setting("MaximumResults", 1000), -7);
    const auto aoEntries = oLab->LogEntries(2);
    ASSERT_EQ(aoEntries.size(), 2U);
    EXPECT_EQ(aoEntries[0].sProcedure + aoEntries[1].sProcedure, "SecondThird");
    EXPECT_EQ(aoEntries[1].oFailure, Failure(9, "Src", "What", "Help", 3));
    EXPECT_TRUE(aoEntries[1].bShowUser);
}

TEST_F(LabTest, AnInnerTransactionIsTakenBackAlone) {
    const auto oLab = OpenLab();
    const auto lRevision = oLab->Revision();
    {
        Lab::Transaction oOuter(*oLab);
        oLab->AddProject("kept");
        {
            Lab::Transaction oInner(*oLab);
            oLab->AddProject("inner");
            oLab->Log({0, Date(), "App", "Page", "inner", Failure(), "", false});
        }
        {
            Lab::Transaction oInner(*oLab);
            oLab->AddProject("kept too");
            oInner.Commit();
        }
        EXPECT_FALSE(oLab->FindProject("inner"));
        oOuter.Commit();
    }
    EXPECT_GT(oLab->Revision(), lRevision);
    EXPECT_EQ(oLab->Projects().size(), 2U);
    {
        Lab::Transaction oOuter(*oLab);
        Lab::Transaction oInner(*oLab);
        oLab->AddProject("all of it");
        for (const auto* sProcedure : {"first", "second", "outer"})
            oLab->Log({0, Date(), "App", "Page", sProcedure, Failure(), "", false});
        oInner.Commit();
    }
    EXPECT_FALSE(oLab->FindProject("all of it")) << "the outermost counts";
    std::string sLogged;
    for (const auto& oEntry : oLab->LogEntries(9)) sLogged += oEntry.sProcedure + " ";
    EXPECT_EQ(sLogged, "inner first second outer ") << "what was logged stays";
}

} // namespace

} // namespace GleanerSvc::Workbench
