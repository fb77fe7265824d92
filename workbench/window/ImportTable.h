// What became of each file of an import.
#pragma once

#include "workbench/lab/FileImport.h"
#include "workbench/window/StartTable.h"

namespace GleanerSvc::Workbench {

class ImportTable final : public StartTable<ImportedFile> {
  public:
    explicit ImportTable(QObject* pParent);
};

} // namespace GleanerSvc::Workbench
