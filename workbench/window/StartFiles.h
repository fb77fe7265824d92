// The choice of files by the desktop's own dialogs.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace GleanerSvc::Workbench {

enum class StartFiles { NewLab, OpenLab, Traces, TraceFolder, Table, Csv };

// None when the operator thinks better of it; several for traces alone.
std::vector<std::string> ChooseFiles(QWidget& oParent, StartFiles eWhat);

} // namespace GleanerSvc::Workbench
