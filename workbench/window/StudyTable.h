// The studies of a lab, below a first row that stands for all results.
#pragma once

#include "workbench/store/Rows.h"
#include "workbench/window/StartTable.h"

namespace GleanerSvc::Workbench {

// The row of all results is a study without an ID.
class StudyTable final : public StartTable<StudyRow> {
  public:
    explicit StudyTable(QObject* pParent);
    void ShowStudies(std::vector<StudyRow> aoStudies);
};

} // namespace GleanerSvc::Workbench
