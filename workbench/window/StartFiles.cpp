#include "workbench/window/StartFiles.h"

#include <QFileDialog>

namespace GleanerSvc::Workbench {

namespace {

constexpr const char* LabFiles = "Labs (*.sqlite);;All files (*)";

QStringList Ask(QWidget& oParent, StartFiles eWhat) {
    switch (eWhat) {
    case StartFiles::NewLab: // one that is there is opened, so nothing is lost by its name
        return {QFileDialog::getSaveFileName(&oParent, "New Lab", "lab.sqlite", LabFiles, nullptr,
                                             QFileDialog::DontConfirmOverwrite)};
    case StartFiles::OpenLab:
        return {QFileDialog::getOpenFileName(&oParent, "Open Lab", "", LabFiles)};
    case StartFiles::Traces:
        return QFileDialog::getOpenFileNames(&oParent, "Traces", "", "Traces (*.fsa *.FSA);;All files (*)");
    case StartFiles::TraceFolder:
        return {QFileDialog::getExistingDirectory(&oParent, "Folder of Traces")};
    case StartFiles::Table:
        return {
            QFileDialog::getOpenFileName(&oParent, "Table of a Kit", "", "Tables (*.txt);;All files (*)")};
    case StartFiles::Csv:
        return {QFileDialog::getSaveFileName(&oParent, "Export as CSV", "results.csv",
                                             "CSV (*.csv);;All files (*)")};
    }
    return {};
}

} // namespace

std::vector<std::string> ChooseFiles(QWidget& oParent, StartFiles eWhat) {
    std::vector<std::string> asFiles;
    for (const auto& sFile : Ask(oParent, eWhat)) {
        if (!sFile.isEmpty()) asFiles.push_back(sFile.toStdString());
    }
    return asFiles;
}

} // namespace GleanerSvc::Workbench
