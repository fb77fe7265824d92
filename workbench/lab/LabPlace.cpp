#include "workbench/lab/LabPlace.h"

#include <QStandardPaths>

namespace GleanerSvc::Workbench {

std::filesystem::path UsualLabFile() {
    const auto sFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
    return std::filesystem::path(sFolder) / "gleaner-workbench" / "lab.sqlite";
}

Ref<Lab> OpenLabFile(const std::filesystem::path& oFile, LabMode eMode) {
    if (eMode == LabMode::CreateIfMissing && oFile.has_parent_path()) {
        std::error_code oError;
        std::filesystem::create_directories(oFile.parent_path(), oError);
        if (oError) throw LabError(oFile.parent_path().string() + ": " + oError.message());
    }
    return Lab::Open(oFile, eMode);
}

} // namespace GleanerSvc::Workbench
