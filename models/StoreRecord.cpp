#include "models/StoreRecord.h"

#include <algorithm>

namespace GleanerSvc::Models {

std::string StoreSettings::Padded(std::string_view sText) const {
    std::string sPadded;
    sPadded.reserve(std::max(nNameWidth, sText.size()));
    sPadded = sText;
    if (sPadded.size() < nNameWidth) sPadded.resize(nNameWidth, ' ');
    return sPadded;
}

} // namespace GleanerSvc::Models
