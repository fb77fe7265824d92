#include "workbench/window/RecordChoice.h"

#include "pagebind/ParameterKeys.h"
#include "workbench/store/SampleDataRecord.h"
#include "workbench/store/StudyRecords.h"

namespace GleanerSvc::Workbench {

namespace {

// Nothing where the key is absent or another kind of object stands there.
template<class T>
Ref<T> Parameter(const FurtherWizard& oWizard, std::string_view sKey) {
    const auto& colParameters = oWizard.Parameters();
    if (!colParameters || !colParameters->Holds(sKey)) return nullptr;
    return std::dynamic_pointer_cast<T>(colParameters->Item(std::string(sKey)).ToObject());
}

} // namespace

RecordChoice ChoiceOf(const FurtherWizard& oWizard) {
    RecordChoice oChoice{0, 0, oWizard.Title()};
    if (const auto oData = Parameter<SampleDataRecord>(oWizard, SingleViewKey::SampleData)) {
        oChoice.lSampleID = oData->SampleID();
        oChoice.lResultID = oData->ResultID();
    }
    if (const auto oResult = Parameter<StudyResultRecord>(oWizard, SingleViewKey::Result))
        oChoice.lResultID = oResult->RecordID();
    return oChoice;
}

} // namespace GleanerSvc::Workbench
