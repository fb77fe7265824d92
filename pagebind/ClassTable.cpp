#include "pagebind/ClassTable.h"

#include <algorithm>
#include <array>

#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr PublicClass Control(std::string_view sName, std::string_view sClassID,
                              std::string_view sInterfaceID, std::string_view sEventsID) {
    return {sName, ClassKind::Control, Guid::Of(sClassID), Guid::Of(sInterfaceID), Guid::Of(sEventsID)};
}

constexpr std::array<PublicClass, 6> Classes{
    PublicClass{"Service", ClassKind::Plain, Guid::Of("A0FFF576-F9C7-4A47-A410-D4EEA17C4E23"),
                Guid::Of("6677F98A-6A88-4F6C-8F11-F843FB27230D"), std::nullopt},
    Control("AnalysisPage", "F0864F0C-DFBF-46E6-BF0F-093A7E4D615D", "6EA0C5FD-8A2E-453E-8327-9954EDA74D69",
            "F9195570-6E89-4691-BF75-970F91826D5A"),
    Control("LocusTagSelectPage", "54577643-07F2-432F-AE13-140178B3D079",
            "2C26E74D-5EA4-4D68-8190-A83CBC9852B6", "DB3EFD50-ED7F-4AE9-BFCD-098FE07E6868"),
    Control("ResultSelectionPage", "505F1929-BBF3-4666-BA05-A7EB62CAF20C",
            "F6CC965A-9F45-4F78-B3C2-C06FC8280472", "FE2B7701-51DC-4A18-84AE-F6280DB7FA6D"),
    Control("SampleSelectionPage", "16DC69A7-343C-4780-866B-33746DF25AD4",
            "13B3C80B-DCB1-44D4-A0C9-7CBF34426600", "0C4EBE84-4044-434E-B98D-F01056505BD6"),
    Control("GleanerCtl", "E6536568-AEE7-434C-823D-742B94ADA454", "9F89D20A-AB8B-4DFA-B52E-A45E37398DE9",
            "FA8F5494-0E1F-42DC-8EB4-9D192CAF8842"),
};

template<class F>
const PublicClass* FindIf(F&& fnIsIt) {
    const auto* const pClass = std::find_if(Classes.begin(), Classes.end(), fnIsIt);
    return pClass == Classes.end() ? nullptr : pClass;
}

} // namespace

std::string PublicClass::ProgrammaticID() const {
    return std::string(LibraryName) + "." + std::string(sName);
}

std::span<const PublicClass> PublicClasses() { return Classes; }

const PublicClass* FindClass(const Guid& oClassID) {
    return FindIf([&](const PublicClass& oClass) { return oClass.oClassID == oClassID; });
}

const PublicClass* FindClass(std::string_view sProgrammaticID) {
    return FindIf([&](const PublicClass& oClass) {
        return EqualsIgnoringCase(oClass.ProgrammaticID(), sProgrammaticID);
    });
}

} // namespace GleanerSvc
