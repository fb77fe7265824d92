#include "pagebind/ClassObjects.h"

#include <gtest/gtest.h>

#include "pagebind/Service.h"
#include "tests/Failing.h"
#include "tests/PageScene.h"

namespace GleanerSvc {
namespace {

Guid ClassID(std::string_view sProgrammaticID) { return FindClass(sProgrammaticID)->oClassID; }

struct Page final : IObject {};

TEST(ClassObjectsTest, MakesWhatIsBoundAndNamesWhatIsNot) {
    const ModelScene oScene;
    ClassObjects oObjects;
    oObjects.Bind("AnalysisPage", [&](const Ref<Apartment>& oWhere) {
        EXPECT_EQ(oWhere, oScene.oApartment);
        return std::make_shared<Page>();
    });
    const ClassObject oPages = oObjects.Get(ClassID("GleanerSvc.AnalysisPage"));
    EXPECT_NE(Cast<Page>(oPages.CreateInstance(oScene.oApartment)), nullptr);
    const auto Get = [&](const Guid& oGuid) { return [&, oGuid] { oObjects.Get(oGuid); }; };
    ExpectTroubles({
        {Get(TypeLibraryID), "{C80923FA-BD76-4A90-BFD6-63F30EC4F0EB}"},
        {Get(ClassID("GleanerSvc.GleanerCtl")), "GleanerCtl {E6536568-AEE7-434C-823D-742B94ADA454}"},
        {[&] { oObjects.Bind("OtherPage", nullptr); }, "\"OtherPage\""},
    });
    EXPECT_TRUE(FailureOf(Get(TypeLibraryID)).Is(FailureNumber::ClassNotAvailable));
}

TEST(ClassObjectsTest, CanUnloadWhenNoInstanceAndNoLockIsLeft) {
    ClassObjects oObjects;
    oObjects.Bind("GleanerCtl", [](const Ref<Apartment>&) { return std::make_shared<Page>(); });
    oObjects.Bind("AnalysisPage", [](const Ref<Apartment>&) { return nullptr; });
    const ClassObject oControls = oObjects.Get(ClassID("GleanerSvc.GleanerCtl"));
    const ClassObject oPages = oObjects.Get(ClassID("GleanerSvc.AnalysisPage"));
    EXPECT_TRUE(FailureOf([&] { oPages.CreateInstance(nullptr); }).Is(FailureNumber::ObjectNotSet));
    EXPECT_TRUE(oObjects.CanUnloadNow()); // class objects count for nothing, nor does what was never made
    auto oFirst = oControls.CreateInstance(nullptr);
    auto oSame = Cast<Page>(oFirst);
    oControls.CreateInstance(nullptr);
    oFirst.reset();
    EXPECT_FALSE(oObjects.CanUnloadNow());
    oSame.reset();
    EXPECT_TRUE(oObjects.CanUnloadNow());
    oObjects.LockServer(true);
    EXPECT_FALSE(oObjects.CanUnloadNow());
    oObjects.LockServer(false);
    EXPECT_TRUE(FailureOf([&] { oObjects.LockServer(false); }).Is(FailureNumber::InvalidCall));
    EXPECT_TRUE(oObjects.CanUnloadNow());
}

TEST(ClassObjectsTest, AServiceHandsOutItsServiceBaseAndReportsTheFailureOfItsMaking) {
    const ModelScene oScene;
    const ClassObject oServices = ClassObjects().Get(ClassID("GleanerSvc.Service")); // outlives its set
    const auto oService = Cast<IServiceAccess>(oServices.CreateInstance(oScene.oApartment));
    EXPECT_NE(Cast<IServiceBase>(oService->ServiceObject()), nullptr);
    const Failure oTrouble(FailureNumber::Unexpected, "Framework", "No service base");
    oScene.Journal().FailCall(1, oTrouble);
    EXPECT_EQ(FailureOf([&] { oServices.CreateInstance(oScene.oApartment); }), oTrouble);
    EXPECT_EQ(oScene.Utility().Chain(), "Class_Initialize");
}

} // namespace
} // namespace GleanerSvc
