#include "pagebind/Registration.h"

#include <gtest/gtest.h>

#include <map>

#include "pagebind/ClassTable.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

// A registry in memory, which can refuse to touch one key.
class MemoryRegistry final : public IRegistry {
  public:
    void SetValue(std::string_view sKey, std::string_view sName, std::string_view sValue) override {
        if (sKey == sRefuse) throw Failure(5, "Registry", "Access denied");
        for (auto nEnd = sKey.find('\\'); nEnd != std::string_view::npos; nEnd = sKey.find('\\', nEnd + 1))
            oKeys.try_emplace(std::string(sKey.substr(0, nEnd)));
        oKeys[std::string(sKey)][std::string(sName)] = sValue;
    }
    bool HasKey(std::string_view sKey) override { return oKeys.contains(std::string(sKey)); }
    void DeleteTree(std::string_view sKey) override {
        if (sKey == sRefuse) throw Failure(5, "Registry", "Access denied");
        ASSERT_TRUE(HasKey(sKey)) << sKey;
        const std::string sBelow = std::string(sKey) + "\\";
        std::erase_if(oKeys, [&](const auto& oKey) { return (oKey.first + "\\").starts_with(sBelow); });
    }
    // The keys below one, with their values; "@" is the default text.
    std::string Below(const std::string& sTop) const {
        std::string sText;
        for (const auto& [sKey, oValues] : oKeys) {
            if (!sKey.starts_with(sTop)) continue;
            sText += sKey.substr(sTop.size());
            for (const auto& [sName, sValue] : oValues)
                sText += " " + (sName.empty() ? "@" : sName) + "=" + sValue;
            sText += "\n";
        }
        return sText;
    }

    std::string sRefuse;
    std::map<std::string, std::map<std::string, std::string>> oKeys;
};

constexpr const char* Module = "C:\\Lab\\GleanerSvc.ocx";

// All that stands in the registry of one class.
std::string TextOf(const MemoryRegistry& oRegistry, const PublicClass& oClass) {
    return oRegistry.Below("CLSID\\" + oClass.oClassID.BracedText()) +
           oRegistry.Below(oClass.ProgrammaticID()) +
           oRegistry.Below("Interface\\" + oClass.oInterfaceID.BracedText()) +
           (oClass.oEventsID ? oRegistry.Below("Interface\\" + oClass.oEventsID->BracedText()) : "");
}

TEST(RegistrationTest, WritesAControlAPlainClassAndTheTypeLibrary) {
    MemoryRegistry oRegistry;
    Register(oRegistry, Module);
    const std::string sInterface = "\\ProxyStubClsid32 @={00020424-0000-0000-C000-000000000046}\n"
                                   "\\TypeLib @={C80923FA-BD76-4A90-BFD6-63F30EC4F0EB} Version=1.0\n";
    EXPECT_EQ(TextOf(oRegistry, *FindClass("GleanerSvc.GleanerCtl")),
              " @=GleanerSvc.GleanerCtl\n\\Control @=\n\\Implemented Categories\n"
              "\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502} @=\n"
              "\\Implemented Categories\\{40FC6ED5-2438-11CF-A3DB-080036F12502} @=\n"
              "\\InprocServer32 @=C:\\Lab\\GleanerSvc.ocx ThreadingModel=Apartment\n"
              "\\MiscStatus @=0\n\\MiscStatus\\1 @=131473\n"
              "\\ProgID @=GleanerSvc.GleanerCtl\n\\Programmable @=\n"
              "\\TypeLib @={C80923FA-BD76-4A90-BFD6-63F30EC4F0EB}\n\\Version @=1.0\n"
              " @=GleanerSvc.GleanerCtl\n\\CLSID @={E6536568-AEE7-434C-823D-742B94ADA454}\n"
              " @=_GleanerCtl\n" +
                  sInterface + " @=__GleanerCtl\n" + sInterface);
    const std::string sService = TextOf(oRegistry, *FindClass("GleanerSvc.Service"));
    for (const char* sOfControls : {"\\Control", "\\MiscStatus", "{40FC6ED4"})
        EXPECT_EQ(sService.find(sOfControls), std::string::npos) << sOfControls;
    EXPECT_EQ(oRegistry.Below("TypeLib\\" + TypeLibraryID.BracedText() + "\\1.0"),
              " @=GleanerSvc\n\\0\n\\0\\win32 @=C:\\Lab\\GleanerSvc.ocx\n\\FLAGS @=2\n\\HELPDIR @=C:\\Lab\n");
}

TEST(RegistrationTest, ClassIsRegisteredWholeOrNotAtAll) {
    MemoryRegistry oWhole;
    Register(oWhole, Module);
    for (const auto& [sKey, oValues] : oWhole.oKeys) {
        if (oValues.empty()) continue;
        MemoryRegistry oRegistry;
        oRegistry.sRefuse = sKey;
        const std::string sFailure = FailureOf([&] { Register(oRegistry, Module); }).ToString();
        EXPECT_TRUE(sFailure.ends_with(" failed at the key \"" + sKey + "\": Access denied")) << sFailure;
        for (const auto& oClass : PublicClasses()) {
            const bool bNamed = sFailure.find(" " + std::string(oClass.sName) + " ") != std::string::npos;
            const std::string sText = TextOf(oRegistry, oClass);
            EXPECT_TRUE(sText.empty() || (!bNamed && sText == TextOf(oWhole, oClass))) << sFailure;
        }
    }
}

TEST(RegistrationTest, UnregisteringRemovesAllThatItCanAndNothingElse) {
    MemoryRegistry oRegistry;
    oRegistry.SetValue("CLSID\\{other}", "", "kept");
    Register(oRegistry, Module);
    oRegistry.sRefuse = "CLSID\\{A0FFF576-F9C7-4A47-A410-D4EEA17C4E23}";
    EXPECT_EQ(FailureOf([&] { Unregister(oRegistry); }).ToString(),
              "5 Registry: Removing Service failed at the key \"" + oRegistry.sRefuse + "\": Access denied");
    for (const auto& oClass : PublicClasses().subspan(1)) EXPECT_EQ(TextOf(oRegistry, oClass), "");
    oRegistry.sRefuse.clear();
    Unregister(oRegistry); // of what is left
    EXPECT_EQ(oRegistry.Below(""), "CLSID\nCLSID\\{other} @=kept\nInterface\nTypeLib\n");
}

} // namespace
} // namespace GleanerSvc
