// The data object of a sample or a result of a lab.
#pragma once

#include "pagebind/Records.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// There is one run, of index 0: any other fails with subscript.
class SampleDataRecord final : public ISampleData {
  public:
    SampleDataRecord(Ref<Lab> oLab, std::int32_t lSampleID, std::int32_t lResultID, std::string sSampleName,
                     Date dtRun);

    std::string SampleName() override { return m_sSampleName; }
    std::int32_t LastRunIndex() override { return 0; }
    Date RunDate(std::int32_t lIndex) override;
    // Of a sample its file, panel and type; of a result the status, the reason, the fit and the calls. Lines
    // end in CR LF.
    std::string Details() override;

    std::int32_t SampleID() const { return m_lSampleID; }
    std::int32_t ResultID() const { return m_lResultID; } // 0 for the data of a sample

  private:
    Ref<Lab> m_oLab;
    std::int32_t m_lSampleID;
    std::int32_t m_lResultID;
    std::string m_sSampleName;
    Date m_dtRun;
};

} // namespace GleanerSvc::Workbench
