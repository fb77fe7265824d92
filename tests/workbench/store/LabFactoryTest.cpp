#include "workbench/store/LabFactory.h"

#include "tests/workbench/store/LabStories.h"
#include "workbench/store/AnalysisParameterRecord.h"
#include "workbench/store/ParameterDefinition.h"
#include "workbench/store/RecordCollection.h"

namespace GleanerSvc::Workbench {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Alpha: S1 in A1 with two results, S2 in B1 without any, on the plate P1. Beta: S3 without a plate.
class LabFactoryTest : public LabStory {
  public:
    LabFactoryTest() : oLab(OpenLab()), oFactory(std::make_shared<LabFactory>(oLab)) {
        const auto lBeta = oLab->AddProject("Beta");
        const auto lAlpha = oLab->AddProject("Alpha");
        const auto lPlate = oLab->AddPlate(lAlpha, "P1");
        AddSample(*oLab, SampleIn(lAlpha, lPlate, "A1", "S1"));
        AddSample(*oLab, SampleIn(lAlpha, lPlate, "B1", "S2"));
        AddSample(*oLab, SampleIn(lBeta, 0, "", "S3"));
        oLab->AddResult(ResultOf(1));
        oLab->AddResult(ResultOf(1));
    }

    Ref<IDataCollection> Collect(std::string_view sQuery, std::string_view sKeyValue = "") const {
        const auto sKeyName = sKeyValue.empty() ? KeyName::None : KeyName::ProjectID;
        return oFactory->GetCollection(sQuery, sKeyName, sKeyValue, "", 0, true);
    }
    template<class T>
    Ref<T> Get(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue) const {
        return Cast<T>(oFactory->GetRecord(sType, sKeyName, sKeyValue, 0, true));
    }

    Ref<Lab> oLab;
    Ref<LabFactory> oFactory;
};

template<class T>
std::vector<std::string> Names(IDataCollection& colRecords) {
    std::vector<std::string> asNames;
    ForEach<T>(colRecords, [&](T& oRecord) { asNames.push_back(oRecord.Name()); });
    return asNames;
}

TEST_F(LabFactoryTest, QueriesYieldTheirRecords) {
    EXPECT_THAT(Names<IProject>(*Collect(QueryName::Projects)), ElementsAre("Alpha", "Beta"));
    EXPECT_THAT(Names<IPlate>(*Collect(QueryName::PlatesByProjectID, "2")), ElementsAre("P1"));
    EXPECT_THAT(Names<ISample>(*Collect(QueryName::Samples)), ElementsAre("S1", "S2", "S3"));
    EXPECT_THAT(Names<ISample>(*Collect(QueryName::SamplesByProjectID, "1")), ElementsAre("S3"));
    EXPECT_THAT(Names<ISample>(*Collect(QueryName::SamplesByProjectID, "-1")), ElementsAre("S1", "S2", "S3"));
    EXPECT_THAT(Names<IResult>(*Collect(QueryName::Results)), ElementsAre("S1", "S1"));
    EXPECT_THAT(Names<IResult>(*Collect(QueryName::ResultsByProjectID, "2")), ElementsAre("S1", "S1"));
    EXPECT_EQ(Collect(QueryName::ResultsByProjectID, "77")->Count(), 0);

    const auto oProject = Get<IProject>("Project", KeyName::ProjectID, "2");
    EXPECT_THAT(Names<ISample>(*oProject->Samples()), ElementsAre("S1", "S2"));
    EXPECT_EQ(oProject->Results()->Count(), 2);
    const auto oResult = Get<IResult>(RecordName::Result, KeyName::ResultID, "2");
    EXPECT_EQ(oResult->Sample()->SampleID(), 1);
    EXPECT_EQ(oResult->PlateID(), 1);
    EXPECT_EQ(oResult->Description(), "OFF LADDER");
    EXPECT_EQ(oResult->DateCollected(), Date(45000));
    EXPECT_EQ(Get<Models::GridTypeRecord>(RecordName::GridType, KeyName::GridTypeID, "4")->Columns().size(),
              5U);
}

TEST_F(LabFactoryTest, WhatItDoesNotKnowFailsNamingIt) {
    EXPECT_THAT(Refusal([&] { oFactory->CreateRecord("Plate"); }), HasSubstr("5 DataFactory"));
    EXPECT_THAT(Refusal([&] { Get<IObject>("Sample", "SampleID", "1"); }), HasSubstr("\"Sample\""));
    EXPECT_THAT(Refusal([&] { Get<IObject>(RecordName::Result, KeyName::ProjectID, "1"); }),
                HasSubstr("has no key \"ProjectID\""));
    EXPECT_THAT(Refusal([&] { Get<IObject>(RecordName::Result, KeyName::ResultID, "1x"); }),
                HasSubstr("\"1x\" is no ID"));
    EXPECT_THAT(Refusal([&] { Get<IObject>(RecordName::Result, KeyName::ResultID, "9"); }),
                HasSubstr("Result 9 is not in the lab " + File().string()));
    EXPECT_THAT(Refusal([&] { Get<IObject>(RecordName::GridType, KeyName::GridTypeID, "6"); }),
                HasSubstr("GridType 6"));
    EXPECT_THAT(Refusal([&] { Collect("Kits"); }), HasSubstr("no query \"Kits\""));
    EXPECT_THAT(Refusal([&] { Collect(QueryName::Samples, "1"); }), HasSubstr("no key \"ProjectID\""));

    const auto colSamples = Collect(QueryName::Samples);
    EXPECT_EQ(Cast<ISample>(colSamples->Item("3"))->Name(), "S3");
    EXPECT_THAT(Refusal([&] { colSamples->Item("4"); }),
                HasSubstr("Samples has no record under the key \"4\""));
    EXPECT_THAT(Refusal([&] { colSamples->Item(4); }), HasSubstr("9 Samples"));
    EXPECT_THAT(Refusal([&] { colSamples->Add(oFactory); }), HasSubstr("13 Samples"));
    colSamples->Add(Get<IObject>("Project", KeyName::ProjectID, "2")); // behind the sample of that ID
    EXPECT_EQ(Cast<ISample>(colSamples->Item("2"))->Name(), "S2") << "the first of one ID";
    EXPECT_EQ(Cast<RecordCollection>(colSamples)->ToString(), "Samples: 1 2 3 2");
}

TEST_F(LabFactoryTest, AMarkBelongsToTheIDInEveryFactoryOfTheLab) {
    Collect(QueryName::Samples)->Item("2")->PutMember(RecordMember::IsSelected, true);
    const auto oOther = std::make_shared<LabFactory>(oLab);
    const auto colSamples = oOther->GetCollection(QueryName::Samples, "", "", "", 0, true);
    EXPECT_FALSE(Cast<ISample>(colSamples->Item("1"))->IsSelected());
    EXPECT_TRUE(colSamples->Item("2")->GetMember(RecordMember::IsSelected).ToBool());
    EXPECT_FALSE(Get<IResult>(RecordName::Result, KeyName::ResultID, "2")->IsSelected()) << "another kind";
    Cast<ISample>(colSamples->Item("2"))->IsSelected(false);
    EXPECT_FALSE(Cast<ISample>(Collect(QueryName::Samples)->Item("2"))->IsSelected());
    EXPECT_THAT(Refusal([&] { colSamples->Item("2")->PutMember("Name", "x"); }), HasSubstr("\"Name\""));
}

TEST_F(LabFactoryTest, APlateTellsItsWellsAnewWhenTheLabHasChanged) {
    const auto oPlate = Cast<IPlate>(Collect(QueryName::PlatesByProjectID, "2")->Item("1"));
    const auto States = [&](std::int32_t iCol, std::int32_t iRow) {
        return DecimalText(oPlate->SampleState(iCol, iRow)) + DecimalText(oPlate->ResultState(iCol, iRow));
    };
    EXPECT_EQ(States(0, 0), "22");
    EXPECT_EQ(States(0, 1), "10");
    EXPECT_EQ(States(1, 0), "00");
    EXPECT_FALSE(oPlate->SampleAt(1, 0) || oPlate->ResultAt(1, 0));
    EXPECT_EQ(oPlate->ResultAt(0, 0)->ResultID(), 2) << "the latest";
    EXPECT_EQ(oPlate->SampleAt(0, 0), oPlate->Samples()->Item("1")) << "one reading";

    AddSample(*oLab, SampleIn(2, 1, "A1", "injected again", 45001));
    AddSample(*oLab, SampleIn(2, 1, "B1", "injected before", 44000));
    oLab->AddResult(ResultOf(2));
    EXPECT_EQ(oPlate->SampleAt(0, 0)->Name(), "injected again");
    EXPECT_EQ(States(0, 0), "12") << "the later injection has no result yet";
    EXPECT_EQ(oPlate->SampleAt(0, 1)->Name(), "S2");
    EXPECT_EQ(States(0, 1), "21");
    EXPECT_EQ(oPlate->Samples()->Count(), 4);
    EXPECT_EQ(oPlate->Results()->Count(), 3);
    EXPECT_THAT(Refusal([&] { oPlate->SampleState(12, 0); }), HasSubstr("9 Plate"));
}

TEST_F(LabFactoryTest, DetailsTellOfSampleAndResult) {
    const auto oSample = Cast<ISample>(Collect(QueryName::Samples)->Item("3"));
    const auto oData = oSample->SampleData();
    EXPECT_EQ(oData->SampleName(), "S3");
    EXPECT_EQ(oData->RunDate(oData->LastRunIndex()), Date(44999.5));
    EXPECT_EQ(oData->Details(), "File: S3.fsa\r\nPanel: Kit\r\nType: Sample\r\n");
    EXPECT_THAT(Refusal([&] { oData->RunDate(1); }), HasSubstr("9 SampleData"));
    EXPECT_EQ(Get<IResult>(RecordName::Result, KeyName::ResultID, "1")->SampleData()->Details(),
              "Status: OFF LADDER\r\nReason: D3S1358 at 124.1 bp\r\n"
              "Size standard: 2 fragments, R2 0.999980, largest error 0.40 bp\r\n"
              "D3S1358: 15 at 120.12 bp (300 RFU), OL at 124.10 bp (280 RFU)\r\n");
    NewResult oOfTwoLoci = ResultOf(2);
    oOfTwoLoci.oCalled.aoCalls = {{"TH01", "9", 0}, {"FGA", "20", 1}};
    const auto sID = std::to_string(oLab->AddResult(oOfTwoLoci));
    EXPECT_THAT(Get<IResult>(RecordName::Result, KeyName::ResultID, sID)->SampleData()->Details(),
                HasSubstr("\r\nTH01: 9 at 120.12 bp (300 RFU)\r\nFGA: 20 at 124.10 bp (280 RFU)\r\n"));
}

TEST_F(LabFactoryTest, AStudyOfTheLabStoresWhatIsAddedWithinTheTransaction) {
    const auto oStudy = oFactory->Study(oLab->AddStudy("Trial"));
    const auto Add = [&](const Ref<IStudy>& oTo, std::int32_t lResultID) {
        auto oStudyResult = Cast<IStudyResult>(oFactory->CreateRecord(RecordName::StudyResult));
        oStudyResult->Study(oTo);
        oStudyResult->ResultID(lResultID);
        oStudyResult->ResultFlag(false);
        oTo->StudyResults()->Add(oStudyResult);
        return oStudyResult;
    };
    Add(oStudy, 2);
    {
        Lab::Transaction oTakenBack(*oLab);
        Add(oStudy, 1);
        EXPECT_EQ(oStudy->StudyResults()->Count(), 2);
    }
    EXPECT_EQ(oStudy->StudyResults()->Count(), 1);
    EXPECT_THAT(IDsOf(oLab->ResultsOfStudy(1)), ElementsAre(2));
    EXPECT_THAT(Refusal([&] { Add(oStudy, 2); }), HasSubstr("already"));
    const auto vResult = oFactory->Study(1)->StudyResults()->Item("2")->GetMember(RecordMember::Result);
    EXPECT_EQ(vResult.To<IResult>()->ResultID(), 2);

    const auto oUnsaved = Cast<IStudy>(oFactory->CreateRecord(RecordName::Study));
    const auto oStudyResult = Add(oUnsaved, 1);
    EXPECT_EQ(oUnsaved->StudyResults()->Count(), 1);
    EXPECT_EQ(oLab->Studies().at(0).lResults, 1) << "kept in memory only";
    EXPECT_THAT(Refusal([&] { oStudy->StudyResults()->Add(oStudyResult); }),
                HasSubstr("is of another study"));
    oStudyResult->ResultID(9);
    EXPECT_THAT(Refusal([&] { oStudyResult->GetMember(RecordMember::Result); }), HasSubstr("no result 9"));
}

TEST_F(LabFactoryTest, AParameterIsWhatItsDefinitionSays) {
    const auto oParameter = Cast<IAnalysisParameter>(oFactory->CreateRecord(RecordName::AnalysisParameter));
    EXPECT_EQ(oParameter->ParameterID(), 0);
    const auto oDefinition = std::make_shared<ParameterDefinition>(oLab);
    oParameter->Definition(oDefinition);
    EXPECT_EQ(oParameter->Name(), "none");
    EXPECT_EQ(oParameter->ParameterID(), 0) << "before a choice";
    EXPECT_THAT(Refusal([&] { oParameter->Definition(oDefinition); }),
                HasSubstr("has its definition already"));

    oDefinition->Choose(AlleleType::Str, {"D3S1358", "vWA"});
    EXPECT_EQ(oDefinition->ToString(), "STR D3S1358 vWA");
    EXPECT_EQ(oParameter->Name(), "STR, 2 loci");
    const auto lFirst = oParameter->ParameterID();
    EXPECT_EQ(oLab->FindParameter(lFirst)->sName, "STR, 2 loci");
    oDefinition->Choose(AlleleType::Snp, {});
    EXPECT_EQ(oParameter->Name(), "SNP, all loci");
    EXPECT_NE(oParameter->ParameterID(), lFirst);
    oDefinition->Choose(AlleleType::Str, {"D3S1358", "vWA"});
    EXPECT_EQ(oParameter->ParameterID(), lFirst) << "the row with just this choice";

    EXPECT_EQ(Cast<ParameterDefinition>(oDefinition->FirstPart(0)), oDefinition);
    EXPECT_EQ(oDefinition->SecondPart(0), oDefinition->FirstPart(0));
    EXPECT_THAT(Refusal([&] { oDefinition->SecondPart(1); }), HasSubstr("9 ParameterDefinition"));
    EXPECT_THAT(Refusal([&] { oDefinition->Definition(oDefinition); }), HasSubstr("takes no definition"));
}

} // namespace

} // namespace GleanerSvc::Workbench
