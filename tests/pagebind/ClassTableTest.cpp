#include "pagebind/ClassTable.h"

#include <gtest/gtest.h>

#include <set>

#include "pagebind/Text.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(GuidTest, ReadsAndWritesItsText) {
    constexpr Guid oGuid = Guid::Of("C80923FA-BD76-4A90-BFD6-63F30EC4F0EB");
    static_assert(oGuid == TypeLibraryID && oGuid != Guid());
    EXPECT_EQ(FailureOf([] { Guid::Of("C80923FA-BD76-4A90-BFD663F30EC4F0EB-0"); }).Description(),
              "\"C80923FA-BD76-4A90-BFD663F30EC4F0EB-0\" is no GUID.");
    EXPECT_EQ(Guid::Of("{c80923fa-bd76-4a90-bfd6-63f30ec4f0eb}").BracedText(),
              "{C80923FA-BD76-4A90-BFD6-63F30EC4F0EB}");
}

TEST(ClassTableTest, EachClassIsFoundByItsGuidAndItsProgrammaticIdentifier) {
    std::string sClasses;
    std::set<Guid> oGuids{TypeLibraryID};
    for (const auto& oClass : PublicClasses()) {
        sClasses += oClass.ProgrammaticID() + (oClass.eKind == ClassKind::Control ? " control " : " ");
        EXPECT_EQ(FindClass(oClass.oClassID), &oClass);
        EXPECT_EQ(FindClass(UpperCase(oClass.ProgrammaticID())), &oClass);
        EXPECT_EQ(oClass.oEventsID.has_value(), oClass.eKind == ClassKind::Control);
        oGuids.insert({oClass.oClassID, oClass.oInterfaceID, oClass.oEventsID.value_or(Guid())});
    }
    EXPECT_EQ(sClasses, "GleanerSvc.Service GleanerSvc.AnalysisPage control "
                        "GleanerSvc.LocusTagSelectPage control GleanerSvc.ResultSelectionPage control "
                        "GleanerSvc.SampleSelectionPage control GleanerSvc.GleanerCtl control ");
    EXPECT_EQ(oGuids.size(), 1 + 6 * 3U); // no two alike
    EXPECT_EQ(FindClass(TypeLibraryID), nullptr);
    EXPECT_EQ(FindClass("GleanerCtl"), nullptr);
}

} // namespace
} // namespace GleanerSvc
