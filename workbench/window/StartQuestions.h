// What the start window asks before it does something. Each form opens and returns; what follows is called
// when the operator accepts.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/lab/SimulatedPlate.h"
#include "workbench/window/StartFiles.h"

class QWidget;

namespace GleanerSvc::Workbench {

using FileChooser = std::function<std::vector<std::string>(StartFiles eWhat)>;

void AskForStudy(QWidget& oParent, const std::function<void(const std::string& sStudy)>& fnThen);

void AskForPlate(QWidget& oParent, const std::vector<std::string>& asProjects,
                 const std::function<void(const SimulatedRun& oRun)>& fnThen);

// The files and folders that are named already can be added to.
void AskForTraces(QWidget& oParent, const std::vector<std::string>& asProjects,
                  const std::vector<std::string>& asFiles, const FileChooser& fnChoose,
                  const std::function<void(const std::vector<std::string>&, const Destination&)>& fnThen);

void AskForKit(QWidget& oParent, const FileChooser& fnChoose,
               const std::function<void(const std::string& sKit, const std::string& sPanels,
                                        const std::string& sBins)>& fnThen);

} // namespace GleanerSvc::Workbench
