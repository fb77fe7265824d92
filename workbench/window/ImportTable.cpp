#include "workbench/window/ImportTable.h"

namespace GleanerSvc::Workbench {

namespace {

std::vector<StartColumn<ImportedFile>> ImportColumns() {
    return {{"File",
             [](const ImportedFile& oFile) {
                 return TextCell(std::filesystem::path(oFile.sFile).filename().string());
             }},
            {"Outcome", [](const ImportedFile& oFile) { return TextCell(OutcomeText(oFile)); }},
            {"Sample", [](const ImportedFile& oFile) { return TextCell(oFile.oSample.sName); }},
            {"Well",
             [](const ImportedFile& oFile) {
                 return TextCell(oFile.oSample.oWell ? WellText(*oFile.oSample.oWell) : "");
             }},
            {"Type", [](const ImportedFile& oFile) { return TextCell(oFile.oSample.sType); }},
            {"Why refused", [](const ImportedFile& oFile) { return TextCell(oFile.sReason); }}};
}

} // namespace

ImportTable::ImportTable(QObject* pParent) : StartTable(ImportColumns(), pParent) {}

} // namespace GleanerSvc::Workbench
