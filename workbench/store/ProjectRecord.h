// A project of a lab.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "pagebind/Records.h"
#include "workbench/store/Lab.h"
#include "workbench/store/LabRecord.h"

namespace GleanerSvc::Workbench {

// The records of a project, or of all of them, by ID, each call with one query.
Ref<IDataCollection> SamplesOf(const Ref<Lab>& oLab, std::int32_t lProjectID);
Ref<IDataCollection> ResultsOf(const Ref<Lab>& oLab, std::int32_t lProjectID);

class ProjectRecord final : public IProject, public LabRecord {
  public:
    ProjectRecord(Ref<Lab> oLab, ProjectRow oRow) : m_oLab(std::move(oLab)), m_oRow(std::move(oRow)) {}

    std::int32_t RecordID() const override { return m_oRow.lProjectID; }
    std::int32_t ProjectID() override { return m_oRow.lProjectID; }
    std::string Name() override { return m_oRow.sName; }
    Ref<IDataCollection> Results() override { return ResultsOf(m_oLab, m_oRow.lProjectID); }
    Ref<IDataCollection> Samples() override { return SamplesOf(m_oLab, m_oRow.lProjectID); }

  private:
    Ref<Lab> m_oLab;
    ProjectRow m_oRow;
};

} // namespace GleanerSvc::Workbench
