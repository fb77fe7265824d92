#include "pagebind/ClassObjects.h"

#include <gtest/gtest.h>

#include <optional>

#include "models/ModelLibraries.h"
#include "pagebind/Service.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

Guid ClassID(std::string_view sProgrammaticID) { return FindClass(sProgrammaticID)->oClassID; }

struct Page final : IObject {};

TEST(ClassObjectsTest, MakesWhatIsBound) {
    const auto oLibraries = Models::ModelLibraries::Create();
    const auto oApartment = oLibraries->MakeApartment();
    ClassObjects oObjects;
    Ref<Apartment> oGiven;
    oObjects.Bind("AnalysisPage", [&](const Ref<Apartment>& oWhere) {
        oGiven = oWhere;
        return std::make_shared<Page>();
    });
    const ClassObject oPages = oObjects.Get(ClassID("GleanerSvc.AnalysisPage"));
    const auto oPage = oPages.CreateInstance(oApartment);
    EXPECT_NE(Cast<Page>(oPage), nullptr);
    EXPECT_NE(oPages.CreateInstance(oApartment), oPage);
    EXPECT_EQ(oGiven, oApartment);
    EXPECT_EQ(oPages.Class().sName, "AnalysisPage");
    const auto oService = oObjects.Get(ClassID("GleanerSvc.Service")).CreateInstance(oApartment);
    EXPECT_NE(Cast<IServiceAccess>(oService), nullptr);
}

TEST(ClassObjectsTest, UnknownAndUnboundClassesAreNamed) {
    ClassObjects oObjects;
    const std::pair<std::function<void()>, const char*> aoCases[] = {
        {[&] { oObjects.Get(TypeLibraryID); }, "{C80923FA-BD76-4A90-BFD6-63F30EC4F0EB}"},
        {[&] { oObjects.Get(ClassID("GleanerSvc.GleanerCtl")); },
         "GleanerCtl {E6536568-AEE7-434C-823D-742B94ADA454}"},
        {[&] { oObjects.Bind("OtherPage", nullptr); }, "\"OtherPage\""},
    };
    for (const auto& [fnCall, sNamed] : aoCases) {
        const Failure oFailure = FailureOf(fnCall);
        EXPECT_TRUE(oFailure.Is(FailureNumber::ClassNotAvailable));
        EXPECT_NE(oFailure.Description().find(sNamed), std::string::npos) << oFailure.ToString();
    }
}

TEST(ClassObjectsTest, CanUnloadWhenNoInstanceAndNoLockIsLeft) {
    ClassObjects oObjects;
    oObjects.Bind("GleanerCtl", [](const Ref<Apartment>&) { return std::make_shared<Page>(); });
    const ClassObject oControls = oObjects.Get(ClassID("GleanerSvc.GleanerCtl"));
    EXPECT_TRUE(oObjects.CanUnloadNow()); // class objects count for nothing
    auto oFirst = oControls.CreateInstance(nullptr);
    auto oSecond = oControls.CreateInstance(nullptr);
    auto oSame = Cast<Page>(oFirst);
    oFirst.reset();
    oSecond.reset();
    EXPECT_FALSE(oObjects.CanUnloadNow());
    oSame.reset();
    EXPECT_TRUE(oObjects.CanUnloadNow());
    oObjects.LockServer(true);
    oObjects.LockServer(true);
    oObjects.LockServer(false);
    EXPECT_FALSE(oObjects.CanUnloadNow());
    oObjects.LockServer(false);
    EXPECT_TRUE(FailureOf([&] { oObjects.LockServer(false); }).Is(FailureNumber::InvalidCall));
    EXPECT_TRUE(oObjects.CanUnloadNow());
}

TEST(ClassObjectsTest, InstanceThatFailsToBeMadeCountsForNothing) {
    ClassObjects oObjects;
    oObjects.Bind("AnalysisPage", [](const Ref<Apartment>&) { return nullptr; });
    const ClassObject oPages = oObjects.Get(ClassID("GleanerSvc.AnalysisPage"));
    EXPECT_TRUE(FailureOf([&] { oPages.CreateInstance(nullptr); }).Is(FailureNumber::ObjectNotSet));
    EXPECT_TRUE(oObjects.CanUnloadNow());
}

TEST(ClassObjectsTest, InstancesAndClassObjectsMayOutliveTheSet) {
    std::optional<ClassObjects> oObjects(std::in_place);
    const auto oLibraries = Models::ModelLibraries::Create();
    const ClassObject oServices = oObjects->Get(ClassID("GleanerSvc.Service"));
    auto oBefore = oServices.CreateInstance(oLibraries->MakeApartment());
    oObjects.reset();
    const std::weak_ptr<IObject> oWatch = oBefore;
    oBefore.reset();
    EXPECT_TRUE(oWatch.expired());
    EXPECT_NE(oServices.CreateInstance(oLibraries->MakeApartment()), nullptr);
}

} // namespace
} // namespace GleanerSvc
