// Brings files into a lab as an operator names them: one refusal leaves the other files as they are.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/lab/TraceImport.h"

namespace GleanerSvc::Workbench {

enum class FileOutcome { Imported, WasThere, Refused };

// What became of a file. The sample is that of the file, nothing for a refused one; the reason is told of a
// refused one only, and names the file.
struct ImportedFile {
    std::string sFile;
    FileOutcome eOutcome = FileOutcome::Refused;
    SampleRow oSample{};
    std::string sReason{};
};

// A file that cannot be taken is a refused one; what the lab refuses fails with LabError.
ImportedFile ImportFile(Lab& oLab, const Destination& oDestination, const std::string& sFile);
std::string OutcomeText(const ImportedFile& oFile); // "imported", "was there", ...

// The files as they are named, and in the place of a folder the trace files (.fsa) in it and below it, by
// name. A folder without any stands for itself, to be refused by its name.
std::vector<std::string> FilesToImport(const std::vector<std::string>& asFilesAndFolders);

// How many panels the kit has. Fails with InputError for tables that cannot be read, and leaves the lab as it
// was.
std::size_t ImportKit(Lab& oLab, const std::string& sKit, const std::filesystem::path& oPanels,
                      const std::filesystem::path& oBins);

} // namespace GleanerSvc::Workbench
