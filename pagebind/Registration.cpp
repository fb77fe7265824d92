#include "pagebind/Registration.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "pagebind/ClassTable.h"
#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

// What a container may expect of a control: the platform's OLEMISC bits.
namespace ControlTrait {
constexpr std::int32_t RecomposeOnResize = 0x1; // draws itself anew for another size
constexpr std::int32_t CantLinkInside = 0x10;   // cannot be the source of a link
constexpr std::int32_t InsideOut = 0x80;        // is worked with in its place, with no frame around it
constexpr std::int32_t ActivateWhenVisible = 0x100;
constexpr std::int32_t SetClientSiteFirst = 0x20000; // wants its site before anything else
} // namespace ControlTrait

constexpr std::int32_t ControlTraits = ControlTrait::RecomposeOnResize | ControlTrait::CantLinkInside |
                                       ControlTrait::InsideOut | ControlTrait::ActivateWhenVisible |
                                       ControlTrait::SetClientSiteFirst;

// The type library describes controls: the platform's LIBFLAG_FCONTROL.
constexpr std::string_view TypeLibraryFlags = "2";

constexpr std::string_view Version = "1.0";
constexpr Guid ControlCategory = Guid::Of("40FC6ED4-2438-11CF-A3DB-080036F12502");
constexpr Guid ProgrammableCategory = Guid::Of("40FC6ED5-2438-11CF-A3DB-080036F12502");
// Carries calls between apartments by what the type library says.
constexpr Guid AutomationProxy = Guid::Of("00020424-0000-0000-C000-000000000046");

struct RegistryValue {
    std::string sKey;
    std::string sName;
    std::string sValue;
};

// What is registered whole or not at all: a class, or the type library.
struct Entry {
    std::string sTitle;                  // the class's name
    std::vector<std::string> asTrees;    // the keys that are its own, with all below them
    std::vector<RegistryValue> aoValues; // in and below them, in the order of writing

    // A key of its own. The text is the key's default one.
    std::string AddTree(std::string sKey, std::string_view sText) {
        Add(sKey, sText);
        return asTrees.emplace_back(std::move(sKey));
    }
    void Add(std::string sKey, std::string_view sText = "") { AddValue(std::move(sKey), "", sText); }
    void AddValue(std::string sKey, std::string_view sName, std::string_view sValue) {
        aoValues.push_back({std::move(sKey), std::string(sName), std::string(sValue)});
    }
};

std::string_view FolderOf(std::string_view sPath) {
    const auto nEnd = sPath.find_last_of("\\/");
    return nEnd == std::string_view::npos ? std::string_view() : sPath.substr(0, nEnd);
}

void AddInterface(Entry& oEntry, const Guid& oInterfaceID, const std::string& sName) {
    const std::string sKey = oEntry.AddTree("Interface\\" + oInterfaceID.BracedText(), sName);
    oEntry.Add(sKey + "\\ProxyStubClsid32", AutomationProxy.BracedText());
    oEntry.Add(sKey + "\\TypeLib", TypeLibraryID.BracedText());
    oEntry.AddValue(sKey + "\\TypeLib", "Version", Version);
}

void AddControlKeys(Entry& oEntry, const std::string& sClassKey) {
    oEntry.Add(sClassKey + "\\Control");
    oEntry.Add(sClassKey + "\\MiscStatus", "0");
    oEntry.Add(sClassKey + "\\MiscStatus\\1", DecimalText(ControlTraits)); // of the control's content
    oEntry.Add(sClassKey + "\\Implemented Categories\\" + ControlCategory.BracedText());
}

void AddClassKeys(Entry& oEntry, const PublicClass& oClass, std::string_view sModulePath) {
    const std::string sProgrammaticID = oClass.ProgrammaticID();
    const std::string sKey = oEntry.AddTree("CLSID\\" + oClass.oClassID.BracedText(), sProgrammaticID);
    oEntry.Add(sKey + "\\InprocServer32", sModulePath);
    oEntry.AddValue(sKey + "\\InprocServer32", "ThreadingModel", "Apartment");
    oEntry.Add(sKey + "\\ProgID", sProgrammaticID);
    oEntry.Add(sKey + "\\TypeLib", TypeLibraryID.BracedText());
    oEntry.Add(sKey + "\\Version", Version);
    oEntry.Add(sKey + "\\Programmable");
    oEntry.Add(sKey + "\\Implemented Categories\\" + ProgrammableCategory.BracedText());
    if (oClass.eKind == ClassKind::Control) AddControlKeys(oEntry, sKey);
}

Entry ClassEntry(const PublicClass& oClass, std::string_view sModulePath) {
    Entry oEntry;
    oEntry.sTitle = oClass.sName;
    AddClassKeys(oEntry, oClass, sModulePath);
    const std::string sProgrammaticKey = oEntry.AddTree(oClass.ProgrammaticID(), oClass.ProgrammaticID());
    oEntry.Add(sProgrammaticKey + "\\CLSID", oClass.oClassID.BracedText());
    AddInterface(oEntry, oClass.oInterfaceID, "_" + oEntry.sTitle);
    if (oClass.oEventsID) AddInterface(oEntry, *oClass.oEventsID, "__" + oEntry.sTitle);
    return oEntry;
}

Entry TypeLibraryEntry(std::string_view sModulePath) {
    Entry oEntry;
    oEntry.sTitle = LibraryName;
    oEntry.asTrees.push_back("TypeLib\\" + TypeLibraryID.BracedText());
    const std::string sKey = oEntry.asTrees.back() + "\\" + std::string(Version);
    oEntry.Add(sKey, LibraryName);
    oEntry.Add(sKey + "\\0\\win32", sModulePath);
    oEntry.Add(sKey + "\\FLAGS", TypeLibraryFlags);
    oEntry.Add(sKey + "\\HELPDIR", FolderOf(sModulePath));
    return oEntry;
}

std::vector<Entry> AllEntries(std::string_view sModulePath) {
    std::vector<Entry> aoEntries{TypeLibraryEntry(sModulePath)};
    for (const auto& oClass : PublicClasses()) aoEntries.push_back(ClassEntry(oClass, sModulePath));
    return aoEntries;
}

// The failure in flight, with what was being done, to which class and at which key.
Failure FailureAt(const Entry& oEntry, const char* sDoing, const std::string& sKey) {
    const Failure oPending = Failure::Pending();
    return Failure(oPending.Number(), oPending.Source(),
                   std::string(sDoing) + " " + oEntry.sTitle + " failed at the key \"" + sKey +
                       "\": " + oPending.Description(),
                   oPending.HelpFile(), oPending.HelpContext());
}

// Removes as much as it can; yields the first failure.
std::optional<Failure> Remove(IRegistry& oRegistry, const Entry& oEntry) {
    std::optional<Failure> oFirst;
    for (const auto& sTree : oEntry.asTrees) {
        try {
            if (oRegistry.HasKey(sTree)) oRegistry.DeleteTree(sTree);
        } catch (...) {
            if (!oFirst) oFirst = FailureAt(oEntry, "Removing", sTree);
        }
    }
    return oFirst;
}

void Write(IRegistry& oRegistry, const Entry& oEntry) {
    for (const auto& oValue : oEntry.aoValues) {
        try {
            oRegistry.SetValue(oValue.sKey, oValue.sName, oValue.sValue);
        } catch (...) {
            const Failure oFailure = FailureAt(oEntry, "Registering", oValue.sKey);
            Remove(oRegistry, oEntry); // a further failure in there is not the one to tell of
            throw oFailure;
        }
    }
}

} // namespace

void Register(IRegistry& oRegistry, std::string_view sModulePath) {
    for (const auto& oEntry : AllEntries(sModulePath)) Write(oRegistry, oEntry);
}

void Unregister(IRegistry& oRegistry) {
    std::optional<Failure> oFirst;
    for (const auto& oEntry : AllEntries("")) {
        const auto oFailure = Remove(oRegistry, oEntry);
        if (!oFirst) oFirst = oFailure;
    }
    if (oFirst) throw Failure(*oFirst);
}

} // namespace GleanerSvc
