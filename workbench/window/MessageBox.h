// What the workbench itself has to tell the operator, beside the pages' own messages.
#pragma once

#include <QMessageBox>

#include <memory>
#include <string_view>

namespace GleanerSvc::Workbench {

// A box above the window in use, ready to be shown: its text is shown to the letter and can be copied. An
// empty title is the workbench's.
std::unique_ptr<QMessageBox> MakeMessageBox(QMessageBox::Icon eIcon, std::string_view sText,
                                            std::string_view sTitle = {});

// Returns when the operator has read it.
void TellTrouble(std::string_view sText);
bool AskYesOrNo(std::string_view sQuestion); // True for Yes; Enter alone is No

} // namespace GleanerSvc::Workbench
