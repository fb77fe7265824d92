// The library's public classes: their names, GUIDs and programmatic identifiers.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "pagebind/Guid.h"

namespace GleanerSvc {

inline constexpr std::string_view LibraryName = "GleanerSvc";
inline constexpr Guid TypeLibraryID = Guid::Of("C80923FA-BD76-4A90-BFD6-63F30EC4F0EB");

enum class ClassKind { Plain, Control };

struct PublicClass {
    std::string_view sName;
    ClassKind eKind;
    Guid oClassID;
    Guid oInterfaceID;             // of the default interface
    std::optional<Guid> oEventsID; // of the event interface; a plain class has none

    // "GleanerSvc.AnalysisPage"
    std::string ProgrammaticID() const;
};

// All of them, in a fixed order.
std::span<const PublicClass> PublicClasses();

// The class with that GUID, or with that programmatic identifier in any case; null where there is none.
const PublicClass* FindClass(const Guid& oClassID);
const PublicClass* FindClass(std::string_view sProgrammaticID);

} // namespace GleanerSvc
