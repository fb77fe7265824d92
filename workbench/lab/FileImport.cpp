#include "workbench/lab/FileImport.h"

#include <algorithm>

#include "pagebind/Text.h"

namespace GleanerSvc::Workbench {

namespace {

TableText ReadTable(const std::filesystem::path& oFile) {
    const auto abContent = ReadBytes(oFile);
    std::string sText(abContent.size(), '\0');
    std::transform(abContent.begin(), abContent.end(), sText.begin(),
                   [](std::byte bByte) { return static_cast<char>(bByte); });
    return {oFile.filename().string(), std::move(sText)};
}

// What of it cannot be looked into is passed over.
std::vector<std::string> TracesBelow(const std::filesystem::path& oFolder) {
    std::vector<std::string> asTraces;
    std::error_code oError;
    std::filesystem::recursive_directory_iterator itFile(
        oFolder, std::filesystem::directory_options::skip_permission_denied, oError);
    while (!oError && itFile != std::filesystem::recursive_directory_iterator()) {
        std::error_code oUnknown;
        if (EqualsIgnoringCase(itFile->path().extension().string(), ".fsa") &&
            itFile->is_regular_file(oUnknown))
            asTraces.push_back(itFile->path().string());
        itFile.increment(oError);
    }
    std::sort(asTraces.begin(), asTraces.end());
    return asTraces;
}

} // namespace

ImportedFile ImportFile(Lab& oLab, const Destination& oDestination, const std::string& sFile) {
    try {
        const Imported oImported = ImportTraceFile(oLab, oDestination, sFile);
        return {sFile, oImported.bWasThere ? FileOutcome::WasThere : FileOutcome::Imported,
                oImported.oSample};
    } catch (const InputError& oError) {
        return {sFile, FileOutcome::Refused, {}, oError.what()};
    }
}

std::string OutcomeText(const ImportedFile& oFile) {
    if (oFile.eOutcome == FileOutcome::Refused) return "refused";
    if (oFile.eOutcome == FileOutcome::WasThere) return "was there";
    return oFile.oSample.lPlateID == 0 ? "imported, without a plate" : "imported";
}

std::vector<std::string> FilesToImport(const std::vector<std::string>& asFilesAndFolders) {
    std::vector<std::string> asFiles;
    for (const auto& sNamed : asFilesAndFolders) {
        std::error_code oError;
        auto asFound =
            std::filesystem::is_directory(sNamed, oError) ? TracesBelow(sNamed) : std::vector<std::string>();
        if (asFound.empty()) asFound.push_back(sNamed);
        asFiles.insert(asFiles.end(), asFound.begin(), asFound.end());
    }
    return asFiles;
}

std::size_t ImportKit(Lab& oLab, const std::string& sKit, const std::filesystem::path& oPanels,
                      const std::filesystem::path& oBins) {
    return oLab.SaveKit(sKit, ReadTable(oPanels), ReadTable(oBins));
}

} // namespace GleanerSvc::Workbench
