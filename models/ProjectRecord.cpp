#include "models/ProjectRecord.h"

#include "models/DataCollectionModel.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

std::int32_t ProjectRecord::ProjectID() {
    Call("ProjectID");
    return RecordID();
}

std::string ProjectRecord::Name() {
    Call("Name");
    return Settings()->Padded(m_sName);
}

Ref<IDataCollection> ProjectRecord::Results() {
    Call("Results");
    return std::make_shared<DataCollectionModel>(Settings()->oJournal, "Results", m_aoResults);
}

Ref<IDataCollection> ProjectRecord::Samples() {
    Call("Samples");
    return std::make_shared<DataCollectionModel>(Settings()->oJournal, "Samples", m_aoSamples);
}

std::string ProjectRecord::ToString() const {
    return DecimalText(RecordID()) + " " + m_sName + " plates=" + DecimalText(std::ssize(m_aoPlates)) +
           " samples=" + DecimalText(std::ssize(m_aoSamples)) +
           " results=" + DecimalText(std::ssize(m_aoResults));
}

} // namespace GleanerSvc::Models
