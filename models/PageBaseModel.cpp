#include "models/PageBaseModel.h"

namespace GleanerSvc::Models {

Ref<IPageHost> PageBaseModel::Host() {
    Call("Host");
    return Frame();
}

Ref<IKeyedCollection> PageBaseModel::Parameters() {
    Call("Parameters");
    Frame();
    return m_colParameters;
}

void PageBaseModel::ValidatePage() {
    Call("ValidatePage");
    Frame()->ValidatePage(*this);
}

void PageBaseModel::Attach(const Ref<IPageFrame>& oFrame, Ref<IKeyedCollection> colParameters) {
    m_oFrame = oFrame;
    m_colParameters = std::move(colParameters);
}

Ref<IPageFrame> PageBaseModel::Frame() const {
    auto oFrame = m_oFrame.lock();
    if (!oFrame) throw Failure(FailureNumber::ObjectNotSet, "PageBase", "The page has no host.");
    return oFrame;
}

std::string PageBaseModel::ToString() const {
    std::string sHandles;
    const auto Name = [&](const auto& oEvent, const char* sName) {
        if (oEvent.SubscriberCount() > 0) sHandles += (sHandles.empty() ? "" : " ") + std::string(sName);
    };
    Name(m_oEvents.Initialize, "Initialize");
    Name(m_oEvents.Activate, "Activate");
    Name(m_oEvents.Deactivate, "Deactivate");
    Name(m_oEvents.Validate, "Validate");
    Name(m_oEvents.Save, "Save");
    return std::string("host=") + (m_oFrame.expired() ? "off" : "on") + " handles=" + sHandles;
}

} // namespace GleanerSvc::Models
