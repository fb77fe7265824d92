#include "pagebind/Service.h"

#include <gtest/gtest.h>

#include "models/ModelLibraries.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

const Failure Trouble(FailureNumber::Unexpected, "Framework", "No service base");

TEST(ServiceTest, HandsOutItsOneServiceBase) {
    const auto oLibraries = Models::ModelLibraries::Create();
    const auto oService = std::make_shared<Service>(oLibraries->MakeApartment());
    const Ref<IService> oObject = Cast<IServiceAccess>(Ref<IObject>(oService))->ServiceObject();
    EXPECT_NE(Cast<IServiceBase>(oObject), nullptr);
    EXPECT_EQ(oService->ServiceObject(), oObject);
    EXPECT_EQ(oLibraries->Journal().EntriesOf("Libraries.CreateServiceBase").size(), 1U);
}

TEST(ServiceTest, FailureAtItsMakingIsReportedAndRaised) {
    const auto oLibraries = Models::ModelLibraries::Create();
    const auto oApartment = oLibraries->MakeApartment();
    oLibraries->Journal().FailCall(1, Trouble);
    EXPECT_EQ(FailureOf([&] { const Service oService(oApartment); }), Trouble);
    ASSERT_EQ(oLibraries->Utility().Reports().size(), 1U);
    EXPECT_EQ(oLibraries->Utility().Reports()[0].ToString(),
              "Service.Class_Initialize: 51 Framework: No service base");
}

} // namespace
} // namespace GleanerSvc
