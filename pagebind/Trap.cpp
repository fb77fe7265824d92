#include "pagebind/Trap.h"

namespace GleanerSvc {

void Trapped::TerminalTail(std::string_view sProcedure, const Failure& oPending) const {
    Report(sProcedure, oPending, true);
    if (AskGates() == Gates::Open) StopAndFailAgain(oPending);
}

Failure Trapped::RaisingTail(std::string_view sProcedure, const Failure& oPending) const {
    Report(sProcedure, oPending, false);
    switch (AskGates()) {
    case Gates::Closed:
        break;
    case Gates::SecondClosed:
        return {}; // disarming the trap has emptied the record, and that is what is raised
    case Gates::Open:
        StopAndFailAgain(oPending);
    }
    return oPending;
}

// A failure in here is not caught: it leaves the procedure at once as a new one.
void Trapped::Report(std::string_view sProcedure, const Failure& oPending, bool bShowUser) const {
    const std::string sAppTitle = Platform().ApplicationTitle();
    const std::string sObjectType = ClassName();
    Deref(m_oApartment->Utility()).LogError(sAppTitle, sObjectType, sProcedure, oPending, "", bShowUser);
}

// The second gate is asked only when the first is open.
Trapped::Gates Trapped::AskGates() const {
    if (!Deref(m_oApartment->Utility()).IsDebugBreakEnabled()) return Gates::Closed;
    const std::int32_t lAppValue = Platform().ApplicationValue();
    return Deref(m_oApartment->Utility()).CanDebugBreak(lAppValue) ? Gates::Open : Gates::SecondClosed;
}

// After the stop the failing statement is to run again, with the trap off. A body cannot be entered in its
// middle here, so it counts as having failed again: the failure leaves the procedure without a second report.
void Trapped::StopAndFailAgain(const Failure& oPending) const {
    Platform().DebugStop();
    throw Failure(oPending);
}

} // namespace GleanerSvc
