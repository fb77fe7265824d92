// Results of a lab, each with the name of its plate.
#pragma once

#include <map>

#include "workbench/store/Rows.h"
#include "workbench/window/StartTable.h"

namespace GleanerSvc::Workbench {

class StudyResultTable final : public StartTable<ResultRow> {
  public:
    explicit StudyResultTable(QObject* pParent);
    void ShowResults(std::vector<ResultRow> aoResults, std::map<std::int32_t, std::string> oPlates);

  private:
    QVariant PlateOf(const ResultRow& oResult) const;

    std::map<std::int32_t, std::string> m_oPlates; // names by ID
};

} // namespace GleanerSvc::Workbench
