#include "workbench/store/ProjectRecord.h"

#include "workbench/store/FragmentRecords.h"
#include "workbench/store/RecordCollection.h"

namespace GleanerSvc::Workbench {

Ref<IDataCollection> SamplesOf(const Ref<Lab>& oLab, std::int32_t lProjectID) {
    auto colSamples = std::make_shared<RecordCollection>("Samples");
    oLab->ForEachSampleHead(lProjectID, [&](SampleRow&& oRow) {
        colSamples->Put(std::make_shared<SampleRecord>(oLab, std::move(oRow)));
    });
    return colSamples;
}

Ref<IDataCollection> ResultsOf(const Ref<Lab>& oLab, std::int32_t lProjectID) {
    auto colResults = std::make_shared<RecordCollection>("Results");
    oLab->ForEachResult(lProjectID, [&](ResultRow&& oRow) {
        colResults->Put(std::make_shared<ResultRecord>(oLab, std::move(oRow)));
    });
    return colResults;
}

} // namespace GleanerSvc::Workbench
