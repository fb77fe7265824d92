// The models' texts are UTF-8; the toolkit's are its own.
#pragma once

#include <QString>

#include <string_view>

namespace GleanerSvc::Workbench {

inline QString ShownText(std::string_view sText) {
    return QString::fromUtf8(sText.data(), static_cast<qsizetype>(sText.size()));
}

} // namespace GleanerSvc::Workbench
