// What a screen reader says of the parts of a plate, which tell it by their places and their pictures alone.
#pragma once

#include <QString>

#include <optional>

#include "pagebind/controls/Label.h"
#include "pagebind/controls/PictureBox.h"

namespace GleanerSvc::Workbench {

// "B2, P1-B02, Selected For Analysis": the place, the tool tip, and the words of the page's legend for the
// picture. Nothing for a picture that is no well's.
QString WellName(const PictureBox& oBox);
// Whether the well is picked; nothing where there is nothing to pick.
std::optional<bool> IsWellPicked(const PictureBox& oBox);

// "Row B" or "Column 2"; nothing for a zone that heads neither.
QString HeadingName(const Label& oZone);

} // namespace GleanerSvc::Workbench
