// The single sample view: a further wizard on the one record in focus. No procedure here has a trap: a
// failure is reported by the right click that led here, under its name.
#include "pagebind/Numbers.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

namespace {

// A window of this number needs neither an owner nor a call to show it.
constexpr std::int16_t OwnWindow = 1;

constexpr std::string_view ViewTitle = "Single Sample View - "; // of results too

std::string NameInTitle(ISample& oSample) { return oSample.Name(); }
std::string NameInTitle(IResult& oResult) { return Deref(oResult.SampleData()).SampleName(); }

} // namespace

// Raw data branches on the window mode of the slot, results on the slot itself; that is meant.
void GleanerCtl::ShowSingleSample() {
    const std::int16_t iWindows = ToInt16(Deref(Context().Settings()).WindowCount() + 1.0);
    const std::int16_t iSlot = Deref(Context().Utility()).GetWindowSlot(iWindows, std::int16_t{1}).ToInt16();
    const auto oRecord = RecordInFocus();
    if (m_bRawData) {
        ShowSingleRawSample(iSlot, Deref(Cast<ISample>(oRecord)));
    } else {
        ShowSingleResult(iSlot, Deref(Cast<IResult>(oRecord)));
    }
}

// By the row in focus, not by the grid's highlight. A selected record may belong to a project that is not on
// show, so it is asked from the selection.
Ref<IObject> GleanerCtl::RecordInFocus() {
    GridControl& oGrid = ActiveGrid();
    if (EqualsIgnoringCase(oGrid.Name(), grdAvailable.Name())) {
        const std::string sKey(oGrid->GetCellText(m_dAvailableRow, KeyColumn()));
        return Deref(m_colFragments).Item(sKey);
    }
    const std::string sKey(oGrid->GetCellText(m_dSelectedRow, KeyColumn()));
    return Deref(m_colSelectedItems).Item(sKey).ToObject();
}

void GleanerCtl::ShowSingleRawSample(std::int16_t iSlot, ISample& oSample) {
    const auto colParameters = std::make_shared<KeyedCollection>();
    colParameters->Add(oSample.SampleData(), SingleViewKey::SampleData);
    colParameters->Add(nullptr, SingleViewKey::Result);
    const std::int16_t iMode = Deref(Context().Utility()).GetWindowMode(iSlot);
    OpenView(WizardName::SingleRawSample, colParameters, iMode, oSample);
}

void GleanerCtl::ShowSingleResult(std::int16_t iSlot, IResult& oResult) {
    const auto colParameters = std::make_shared<KeyedCollection>();
    colParameters->Add(CreateViewResult(oResult), SingleViewKey::Result);
    colParameters->Add(Deref(oResult.Sample()).SampleData(), SingleViewKey::SampleData);
    OpenView(WizardName::SingleSample, colParameters, iSlot, oResult);
}

// Records for this view only, from a factory of its own; nothing saves them.
Ref<IStudyResult> GleanerCtl::CreateViewResult(IResult& oResult) {
    const auto oFactory = Context().Libraries().CreateDataFactory();
    auto oStudyResult = Cast<IStudyResult>(Deref(oFactory).CreateRecord(RecordName::StudyResult));
    const auto oStudy = Cast<IStudy>(oFactory->CreateRecord(RecordName::Study));
    Deref(oStudyResult).Study(oStudy);
    oStudyResult->ResultID(oResult.ResultID());
    oStudyResult->ResultFlag(false);
    Deref(Deref(oStudy).StudyResults()).Add(oStudyResult);
    return oStudyResult;
}

// The fixed arguments are the launcher's own. The name stays untrimmed in the title.
template<class T>
void GleanerCtl::OpenView(std::string_view sWizard, const Ref<IKeyedCollection>& colParameters,
                          std::int16_t iOwner, T& oRecord) {
    const bool bShowNow = iOwner != OwnWindow;
    const auto oHost =
        Deref(Context().Launcher())
            .OpenWizard(sWizard, colParameters, nullptr, 1, true, 1, 0, true, true, "", bShowNow, true);
    if (bShowNow) Deref(oHost).SetOwner(iOwner);
    Deref(oHost).Title(std::string(ViewTitle) + NameInTitle(oRecord));
    if (bShowNow) Deref(oHost).Show();
}

} // namespace GleanerSvc
